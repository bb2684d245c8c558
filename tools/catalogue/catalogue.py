#!/usr/bin/env python3
"""Reads the rows of the catalogue, checks them, and prints what follows from them. README.md tells the form."""

import argparse
import sys
from pathlib import Path

from check import check, exported_names
from emit_header import emit_header
from emit_reference import emit_reference
from emit_sources import emit_sources
from load import RowError, load
from output import write


def emit_exports(catalogue):
    names = [name for row in catalogue.attributes + catalogue.operations for name in exported_names(row)]
    return "".join(f"{name}\n" for name in sorted(names))


def write_files(directory, files):
    for name, text in files.items():
        write(Path(directory) / name, text)


PRODUCTS = {
    "header": ("OUT", "the public header", lambda out, rows: write(out, emit_header(rows))),
    "sources": ("DIR", "the C++ of the library", lambda out, rows: write_files(out, emit_sources(rows))),
    "reference": ("DIR", "the Markdown reference", lambda out, rows: write_files(out, emit_reference(rows))),
    "exports": ("OUT", "the exported symbols", lambda out, rows: write(out, emit_exports(rows))),
    "check": (None, "nothing; fails on the first wrong row", lambda out, rows: None),
}


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__)
    products = parser.add_subparsers(dest="product", required=True)
    for name, (out, what, _) in PRODUCTS.items():
        product = products.add_parser(name, help=what)
        if out:
            product.add_argument("out", metavar=out)
        product.add_argument("rows", metavar="ROWS", nargs="+")
    options = parser.parse_args(arguments)
    try:
        catalogue = load(options.rows)
        check(catalogue)
        PRODUCTS[options.product][2](getattr(options, "out", None), catalogue)
    except RowError as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
