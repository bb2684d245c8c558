"""PyVISA's own protocols, in Python, with the virtual instrument at the other end."""

import unittest

import pyvisa
from pyvisa import constants

from bench import IDENTITY, SCREENSHOT, WithInstrument, WithPortMapper, WithRpcbind, every_byte


class Client:
    def setUp(self):
        self.manager = pyvisa.ResourceManager("@py")
        self.addCleanup(self.manager.close)
        self.device = self.manager.open_resource(self.resource(), read_termination="\n", write_termination="\n")
        self.device.write("*CLS")

    def test_a_query_is_answered(self):
        self.assertEqual(IDENTITY, self.device.query("*IDN?"))

    def test_what_is_written_holds(self):
        self.device.write(":POW -12.5 DBM")
        self.assertEqual([-12.5], self.device.query_ascii_values(":POW?"))

    def test_a_block_of_every_byte_comes_back(self):
        block = every_byte(100_000)
        self.device.write_binary_values(':MMEM:DATA "Internal","/interop.bin",', block, datatype="B")
        back = self.device.query_binary_values(':MMEM:DATA? "Internal","/interop.bin"', datatype="B", container=bytes)
        self.assertEqual(block, back)
        self.assertEqual('0,"No error"', self.device.query(":SYST:ERR?"))

    def test_a_screenshot_is_a_picture(self):
        self.assert_screenshot(self.device.query_binary_values(SCREENSHOT, datatype="B", container=bytes))

    def test_silence_is_a_timeout_and_the_link_goes_on(self):
        self.device.timeout = 50
        with self.assertRaises(pyvisa.VisaIOError) as raised:
            self.device.read()
        self.assertEqual(constants.StatusCode.error_timeout, raised.exception.error_code)
        self.device.timeout = 5000
        self.assertEqual("1", self.device.query("*OPC?"))


class OverSocket(Client, WithInstrument):
    def resource(self):
        return f"TCPIP0::127.0.0.1::{self.instrument.ports['socket']}::SOCKET"


class Vxi11(Client):
    def resource(self):
        return "TCPIP0::127.0.0.1::inst0::INSTR"

    def test_the_status_byte_tells_of_an_error(self):
        self.assertEqual(0, self.device.read_stb() & 4)
        self.device.write(":NO:SUCH:HEADER")
        self.assertEqual("1", self.device.query("*OPC?"))
        self.assertEqual(4, self.device.read_stb() & 4)

    def test_a_clear_drops_the_answer_that_nobody_read(self):
        self.device.write("*IDN?")
        self.device.clear()
        self.assertEqual("1", self.device.query("*OPC?"))

    def test_a_trigger_reaches_the_instrument(self):
        self.device.assert_trigger()
        # Nothing waits for one.
        self.assertTrue(self.device.query(":SYST:ERR?").startswith('-211,"Trigger ignored'))

    def test_an_exclusive_lock_keeps_another_link_out(self):
        other = self.manager.open_resource(self.resource(), read_termination="\n", write_termination="\n")
        self.device.lock_excl()
        with self.assertRaises(pyvisa.VisaIOError) as raised:
            other.query("*IDN?")
        # Its word for every write that is refused.
        self.assertEqual(constants.StatusCode.error_io, raised.exception.error_code)
        self.device.unlock()
        self.assertEqual(IDENTITY, other.query("*IDN?"))


class OverVxi11(Vxi11, WithPortMapper):
    pass


class OverVxi11WithRpcbind(Vxi11, WithRpcbind):
    pass


if __name__ == "__main__":
    unittest.main()
