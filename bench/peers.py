#!/usr/bin/python3
"""Queries a second of the same virtual instrument, by this driver, its VISA and the programs of others.

usage: peers.py BUILD_FOLDER [SECONDS]
"""

import ctypes
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import time

QUESTION = ":FREQ:MULT?"


def rate(ask, seconds):
    """Calls a second; the first ones warm up."""
    for _ in range(50):
        ask()
    count, end = 0, time.perf_counter() + seconds
    while time.perf_counter() < end:
        ask()
        count += 1
    return count / seconds


def plain_socket(port, seconds):
    with socket.create_connection(("127.0.0.1", port)) as link:
        link.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)

        def ask():
            link.sendall(QUESTION.encode() + b"\n")
            if not link.recv(256).endswith(b"\n"):
                raise RuntimeError("no whole answer")

        return rate(ask, seconds)


def driver(build, port, seconds):
    library = ctypes.CDLL(str(build / "src/libKVTD481X2C.so"))
    vi, value = ctypes.c_uint32(), ctypes.c_double()
    if library.KVTD481X2C_InitWithOptions(f"TCPIP0::127.0.0.1::{port}::SOCKET".encode(), 0, 0, b"", ctypes.byref(vi)):
        raise RuntimeError("no session")

    def ask():
        if library.KVTD481X2C_GetFrequencyMultiplier(vi, ctypes.byref(value)) < 0:
            raise RuntimeError("a failed query")

    try:
        return rate(ask, seconds)
    finally:
        library.KVTD481X2C_close(vi)


def pyvisa(backend, port, seconds):
    import pyvisa
    manager = pyvisa.ResourceManager(backend)
    with manager.open_resource(f"TCPIP0::127.0.0.1::{port}::SOCKET") as link:
        link.read_termination = link.write_termination = "\n"
        return rate(lambda: link.query(QUESTION), seconds)


def lxi(port, seconds):
    count = int(2000 * seconds)
    said = subprocess.run(["lxi", "benchmark", "--address", "127.0.0.1", "--port", str(port), "--raw", "--count", str(count)],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=600, check=True).stdout
    return float(re.search(r"([\d.]+) requests/second", said).group(1))


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    seconds = float(sys.argv[2]) if len(sys.argv) > 2 else 3.0
    visa = build / "platform/visa/libtvrvisa.so"
    instrument = subprocess.Popen([build / "instrument/td481x2c-instrument", "--socket", "0", "--exit-with-stdin"],
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    try:
        port = int(instrument.stdout.readline().rpartition(":")[2])
        rows = [("a plain socket, from Python", lambda: plain_socket(port, seconds)),
                ("this driver, from Python", lambda: driver(build, port, seconds))]
        try:
            import pyvisa as _
            rows += [("PyVISA on this VISA", lambda: pyvisa(f"{visa}@ivi", port, seconds)),
                     ("PyVISA on pyvisa-py", lambda: pyvisa("@py", port, seconds))]
        except ImportError:
            print("PyVISA is not installed", file=sys.stderr)
        if shutil.which("lxi"):
            rows.append(("lxi benchmark (asks *IDN?)", lambda: lxi(port, seconds)))
        for name, measure in rows:
            print(f"{name:32} {measure():9.0f} queries/s", flush=True)
    finally:
        instrument.stdin.close()
        instrument.wait(10)


if __name__ == "__main__":
    main()
