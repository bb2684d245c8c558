"""What the tests share: a virtual instrument of their own, and what they know about it."""

import os
import random
import subprocess
import unittest

import private_network

PROGRAM = os.environ["KVTD_INSTRUMENT"]
PROTOCOLS = ("socket", "hislip", "vxi11")
IDENTITY = "Kelvora,TD48142C,SN4711,1.4.2"
SCREENSHOT = ":MMEM:STOR:SCR?"
PNG = b"\x89PNG\r\n\x1a\n"
PNG_END = b"IEND\xaeB`\x82"


class Instrument:
    """The program on free ports, over every protocol, until `end`."""

    def __init__(self, port_mapper):
        options = ["--portmapper", port_mapper] + [word for protocol in PROTOCOLS for word in (f"--{protocol}", "0")]
        self._program = subprocess.Popen([PROGRAM, "--serial", "SN4711", "--exit-with-stdin", *options],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.ports = {}
        while not self.ports.keys() >= set(PROTOCOLS):
            line = self._program.stdout.readline()
            if not line:
                self.end()
                raise RuntimeError("the virtual instrument told no listeners")
            listener, address = line.split()
            self.ports[listener] = int(address.rpartition(":")[2])

    def end(self):
        self._program.communicate(timeout=10)
        return self._program.returncode


class WithInstrument(unittest.TestCase):
    """The tests of a class have one instrument together; it must end well."""

    port_mapper = "off"

    @classmethod
    def setUpClass(cls):
        cls.instrument = Instrument(cls.port_mapper)
        cls.addClassCleanup(cls._end)

    @classmethod
    def _end(cls):
        if cls.instrument.end() != 0:
            raise RuntimeError("the virtual instrument did not end well")

    def assert_screenshot(self, picture):
        self.assertTrue(picture.startswith(PNG), picture[:8])
        self.assertTrue(picture.endswith(PNG_END), picture[-8:])


class WithPortMapper(WithInstrument):
    """And VXI-11 clients find the instrument without being told a port. It serves the port mapper itself."""

    port_mapper = "auto"

    @classmethod
    def setUpClass(cls):
        private_network.enter()
        super().setUpClass()


class WithRpcbind(WithPortMapper):
    """The port mapper is the system's, where the instrument registers."""

    @classmethod
    def setUpClass(cls):
        private_network.enter()
        mapper = private_network.start_rpcbind()
        cls.addClassCleanup(mapper.wait)
        cls.addClassCleanup(mapper.terminate)
        super().setUpClass()


def every_byte(size):
    """A block in which every byte occurs, line feeds and NULs too."""
    return bytes(range(256)) + random.Random(481).randbytes(size - 256)
