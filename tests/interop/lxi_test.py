"""lxi-tools with the virtual instrument at the other end."""

import os
import re
import subprocess
import unittest

from bench import IDENTITY, SCREENSHOT, WithInstrument, WithPortMapper, WithRpcbind

LXI = os.environ["KVTD_LXI"]


class Tools:
    def lxi(self, command, *words):
        done = subprocess.run([LXI, command, "--address", "127.0.0.1", *self.link(), *words], stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=60, check=False)
        self.assertEqual(0, done.returncode, done)
        return done.stdout

    def ask(self, command):
        return self.lxi("scpi", command)

    def test_a_query_is_answered(self):
        self.assertEqual(f"{IDENTITY}\n".encode(), self.ask("*IDN?"))

    def test_what_is_written_holds(self):
        self.assertEqual(b"", self.ask(":FREQ 2.5 GHZ"))
        self.assertEqual(b"2500000000\n", self.ask(":FREQ?"))

    def test_a_screenshot_is_printed_as_the_block_that_it_is(self):
        block = self.ask(SCREENSHOT)
        digits = int(block[1:2])
        size = int(block[2:2 + digits])
        self.assertEqual(b"#", block[:1])
        self.assertEqual(b"\n", block[2 + digits + size:])
        self.assert_screenshot(block[2 + digits:-1])

    def test_the_benchmark_runs_to_its_end(self):
        said = self.lxi("benchmark", "--count", "200").decode()
        rate = re.search(r"Result: ([0-9.]+) requests/second", said)
        self.assertIsNotNone(rate, said)
        self.assertGreater(float(rate[1]), 0)


class OverSocket(Tools, WithInstrument):
    def link(self):
        return ["--raw", "--port", str(self.instrument.ports["socket"])]


class Vxi11(Tools):
    def link(self):
        return []


class OverVxi11(Vxi11, WithPortMapper):
    pass


class OverVxi11WithRpcbind(Vxi11, WithRpcbind):
    pass


if __name__ == "__main__":
    unittest.main()
