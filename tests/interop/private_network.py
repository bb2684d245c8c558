"""A network of this process's own, in which nobody has port 111 yet.

VXI-11 clients ask the port mapper there where an instrument listens, and a test must not meddle with the machine's own.
"""

import ctypes
import fcntl
import functools
import os
import socket
import struct
import subprocess
import unittest

RPCBIND = os.environ["KVTD_RPCBIND"]
_PORT_MAPPER = ("127.0.0.1", 111)
_CLONE_NEWNS, _CLONE_NEWNET = 0x00020000, 0x40000000
_MS_REC, _MS_PRIVATE = 0x4000, 0x40000
_SIOCSIFFLAGS, _IFF_UP = 0x8914, 1


@functools.cache
def _enter():
    """Once for the process, and for good. Why not, if it may not be done."""
    libc = ctypes.CDLL(None, use_errno=True)
    # rpcbind leaves its lock and its socket in /run: not in that of the machine.
    if (libc.unshare(_CLONE_NEWNET | _CLONE_NEWNS) != 0
            or libc.mount(b"none", b"/", None, _MS_REC | _MS_PRIVATE, None) != 0
            or libc.mount(b"tmpfs", b"/run", b"tmpfs", 0, None) != 0):
        return f"no network of its own: {os.strerror(ctypes.get_errno())}"
    with socket.socket() as any_socket:
        fcntl.ioctl(any_socket, _SIOCSIFFLAGS, struct.pack("16sH14x", b"lo", _IFF_UP))
    return None


def enter():
    """Programs started from now on are in it too. The test is skipped where that is not allowed."""
    if reason := _enter():
        raise unittest.SkipTest(reason)


def start_rpcbind():
    """The system's port mapper; it listens when this returns."""
    if not RPCBIND:
        raise unittest.SkipTest("rpcbind is not installed")
    mapper = subprocess.Popen([RPCBIND, "-f"], stdin=subprocess.DEVNULL)
    for _ in range(500):
        try:
            socket.create_connection(_PORT_MAPPER).close()
            return mapper
        except ConnectionRefusedError:
            try:
                raise RuntimeError(f"rpcbind ended with {mapper.wait(timeout=0.02)}") from None
            except subprocess.TimeoutExpired:
                pass
    mapper.kill()
    raise TimeoutError("rpcbind does not listen")
