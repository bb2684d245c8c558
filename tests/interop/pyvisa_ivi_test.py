"""PyVISA with our VISA library underneath: what Python programs do with a vendor's, they can do with this one."""

import os
import threading
import unittest
import unittest.mock

import pyvisa
from pyvisa import constants

from bench import IDENTITY, SCREENSHOT, WithInstrument, WithPortMapper, WithRpcbind, every_byte

LIBRARY = os.environ["KVTD_VISA"]
UPLOAD = ':MMEM:DATA "Internal","/interop.bin",'
DOWNLOAD = ':MMEM:DATA? "Internal","/interop.bin"'


class Session:
    """What every link can do; each link below is one test case more."""

    LOCKED_OUT = constants.StatusCode.error_resource_locked

    def setUp(self):
        self.manager = pyvisa.ResourceManager(f"{LIBRARY}@ivi")
        self.addCleanup(self.manager.close)
        self.device = self.open()
        self.device.write("*CLS")

    def open(self, **options):
        return self.manager.open_resource(self.resource(), read_termination="\n", write_termination="\n", **options)

    def assert_status(self, status, call, *arguments, **named):
        with self.assertRaises(pyvisa.VisaIOError) as raised:
            call(*arguments, **named)
        self.assertEqual(status, raised.exception.error_code)

    def test_a_query_gives_the_answer_without_its_line_feed(self):
        self.assertEqual(IDENTITY, self.device.query("*IDN?"))

    def test_what_is_written_holds(self):
        self.device.write(":FREQ 1.5 GHZ")
        self.assertEqual([1.5e9], self.device.query_ascii_values(":FREQ?"))

    def test_read_raw_gives_every_byte(self):
        self.device.write("*IDN?")
        self.assertEqual(IDENTITY.encode() + b"\n", self.device.read_raw())

    def test_an_answer_can_be_read_in_pieces(self):
        self.device.write("*IDN?")
        self.assertEqual(b"Kelvora,TD", self.device.read_bytes(10))
        self.assertEqual("48142C,SN4711,1.4.2", self.device.read())

    def test_a_block_of_every_byte_comes_back(self):
        block = every_byte(300_000)
        self.device.write_binary_values(UPLOAD, block, datatype="B")
        self.assertEqual(block, self.device.query_binary_values(DOWNLOAD, datatype="B", container=bytes))
        self.assertEqual('0,"No error"', self.device.query(":SYST:ERR?"))

    def test_numbers_of_a_block_come_back(self):
        numbers = [0.0, -1.5, 1e300, 2.0**-1074]
        self.device.write_binary_values(UPLOAD, numbers, datatype="d", is_big_endian=True)
        self.assertEqual(numbers, self.device.query_binary_values(DOWNLOAD, datatype="d", is_big_endian=True))

    def test_a_screenshot_is_a_picture(self):
        picture = self.device.query_binary_values(SCREENSHOT, datatype="B", container=bytes)
        self.assert_screenshot(picture)

    def test_silence_is_a_timeout_and_the_session_goes_on(self):
        self.device.timeout = 50
        self.assert_status(constants.StatusCode.error_timeout, self.device.read)
        self.device.timeout = 5000
        self.assertEqual(IDENTITY, self.device.query("*IDN?"))

    def test_the_status_byte_tells_of_an_error(self):
        self.prepare_status_byte()
        self.assertEqual(0, self.device.read_stb() & 4)
        self.device.write(":NO:SUCH:HEADER")
        self.assertEqual("1", self.device.query("*OPC?"))
        self.assertEqual(4, self.device.read_stb() & 4)

    def test_an_exclusive_lock_keeps_another_session_out(self):
        other = self.open()
        self.device.lock_excl(timeout=1000)
        self.assertEqual(constants.AccessModes.exclusive_lock, self.device.lock_state)
        other.timeout = 200
        self.assert_status(self.LOCKED_OUT, other.query, "*IDN?")
        self.assertEqual(IDENTITY, self.device.query("*IDN?"))
        self.device.unlock()
        other.timeout = 5000
        self.assertEqual(IDENTITY, other.query("*IDN?"))

    def test_a_shared_lock_is_joined_with_its_key(self):
        other = self.open()
        key = self.device.lock(timeout=1000, requested_key="interop")
        self.assertIn(key, ("interop", b"interop"))
        self.assertIn(other.lock(timeout=1000, requested_key="interop"), ("interop", b"interop"))
        self.assertEqual(IDENTITY, other.query("*IDN?"))
        self.device.unlock()
        other.unlock()

    def test_a_clear_drops_the_rest_of_an_answer(self):
        self.device.write("*IDN?")
        self.assertEqual(b"Kelvora", self.device.read_bytes(7))
        self.device.clear()
        self.assertEqual("1", self.device.query("*OPC?"))

    def test_attributes_tell_what_the_link_is(self):
        self.assertEqual(constants.InterfaceType.tcpip, self.device.interface_type)
        self.assertEqual(self.resource(), self.device.resource_name)
        self.assertEqual(0x00700200, self.device.spec_version)
        self.assertEqual("127.0.0.1", self.device.get_visa_attribute(constants.VI_ATTR_TCPIP_ADDR))

    def test_a_closed_session_is_refused(self):
        self.device.close()
        self.assertRaises(pyvisa.InvalidSession, self.device.query, "*IDN?")


class OverSocket(Session, WithInstrument):
    def resource(self):
        return f"TCPIP0::127.0.0.1::{self.instrument.ports['socket']}::SOCKET"

    # A raw socket has no status byte of its own: it is asked for with a command, if the caller wants that.
    def prepare_status_byte(self):
        self.assert_status(constants.StatusCode.error_invalid_setup, self.device.read_stb)
        self.device.set_visa_attribute(constants.VI_ATTR_IO_PROT, constants.IOProtocol.protocol4882_strs)


class ServiceRequests:
    """Of the links that have them."""

    def prepare_status_byte(self):
        pass

    def test_a_service_request_is_waited_for(self):
        event, queue = constants.EventType.service_request, constants.EventMechanism.queue
        self.device.enable_event(event, queue)
        self.device.write("*SRE 4")
        self.addCleanup(self.device.write, "*SRE 0")
        self.assertTrue(self.device.wait_on_event(event, 0, capture_timeout=True).timed_out)
        self.device.write(":NO:SUCH:HEADER")
        response = self.device.wait_on_event(event, 5000)
        self.assertEqual(event, response.event.event_type)
        self.assertEqual(0x44, self.device.read_stb() & 0x44)
        self.device.disable_event(event, queue)

    def test_a_service_request_calls_the_handler(self):
        event, mechanism = constants.EventType.service_request, constants.EventMechanism.handler
        called = threading.Event()
        handler = self.device.wrap_handler(lambda device, event, user: called.set())
        user = self.device.install_handler(event, handler)
        self.device.enable_event(event, mechanism)
        self.device.write("*SRE 4")
        self.addCleanup(self.device.write, "*SRE 0")
        self.device.write(":NO:SUCH:HEADER")
        self.assertTrue(called.wait(5))
        self.device.disable_event(event, mechanism)
        self.device.uninstall_handler(event, handler, user)

    def test_a_trigger_reaches_the_instrument(self):
        self.device.assert_trigger()
        # Nothing waits for one.
        self.assertEqual('-211,"Trigger ignored', self.device.query(":SYST:ERR?").partition(";")[0].rstrip('"'))


class OverHislip(ServiceRequests, Session, WithInstrument):
    # The device keeps others out, and lets them wait.
    LOCKED_OUT = constants.StatusCode.error_timeout

    def resource(self):
        return f"TCPIP0::127.0.0.1::hislip0,{self.instrument.ports['hislip']}::INSTR"


class Vxi11(ServiceRequests, Session):
    def resource(self):
        return "TCPIP0::127.0.0.1::inst0::INSTR"

    def test_the_instrument_is_found_in_the_list(self):
        with unittest.mock.patch.dict(os.environ, TVR_VISA_FIND_ADDRESSES="127.0.0.1"):
            self.assertEqual((self.resource(),), self.manager.list_resources())


class OverVxi11(Vxi11, WithPortMapper):
    pass


class OverVxi11WithRpcbind(Vxi11, WithRpcbind):
    pass


if __name__ == "__main__":
    unittest.main()
