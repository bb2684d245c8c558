"""Prints docs/reliability.md and docs/performance.md from what the stages of script/proof left.

usage: pages.py RESULTS_FOLDER DOCS_FOLDER
"""

import json
import pathlib
import platform
import re
import string
import subprocess
import sys
import xml.etree.ElementTree as xml

import speed

HERE = pathlib.Path(__file__).parent
NOT_RUN = "no result"
# What gcovr counts, and at least so many per cent of it.
COVERAGE_AIMS = [("line_percent", "lines", 95), ("branch_percent", "branches", 90)]


def suite(results, name):
    try:
        root = xml.parse(results / f"{name}.xml").getroot()
    except FileNotFoundError:
        return NOT_RUN
    count = {key: int(root.get(key, "0")) for key in ("tests", "failures", "skipped", "disabled")}
    said = f"{count['tests']} tests, {count['failures']} failures"
    return said + (f", {count['skipped']} skipped" if count["skipped"] else "")


def lines(results, name):
    try:
        text = (results / f"{name}.txt").read_text(encoding="utf-8").strip()
    except FileNotFoundError:
        return NOT_RUN
    return "\n".join("    " + line for line in text.splitlines())


FAULTS = re.compile(r"proof: faults over (\S+): (\d+) cases: (.*)")
LINKS = ("socket", "HiSLIP", "VXI-11")


def without_faults(text):
    return "\n".join(entry for entry in text.splitlines() if "proof: faults over" not in entry)


def faults(results):
    """How many cases of each kind were tried over each link."""
    try:
        text = (results / "calls.txt").read_text(encoding="utf-8")
    except FileNotFoundError:
        return NOT_RUN
    tried = {}
    for link, count, kind in FAULTS.findall(text):
        tried.setdefault(kind, dict.fromkeys(LINKS, 0))[link] += int(count)
    if not tried:
        return NOT_RUN
    table = ["| Fault | " + " | ".join(LINKS) + " |", "|---|" + "---:|" * len(LINKS)]
    for kind, counts in sorted(tried.items()):
        table.append(f"| {kind} | " + " | ".join(f"{counts[link]:,}" if counts[link] else "" for link in LINKS) + " |")
    sums = [sum(counts[link] for counts in tried.values()) for link in LINKS]
    table.append(f"| **all {sum(sums):,}** | " + " | ".join(f"**{count:,}**" for count in sums) + " |")
    return "\n".join(table)


def line(results, name):
    return lines(results, name).strip()


def coverage(results):
    try:
        found = json.loads((results / "coverage.json").read_text(encoding="utf-8"))
    except FileNotFoundError:
        return NOT_RUN
    return ", ".join(f"{found[key]:.1f} % of {of} ({'met' if round(found[key], 1) >= aim else '**missed**'})"
                     for key, of, aim in COVERAGE_AIMS)


def machine():
    model = "an unknown processor"
    for entry in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if entry.startswith("model name"):
            model = entry.partition(":")[2].strip()
            break
    cores = subprocess.run(["nproc"], stdout=subprocess.PIPE, text=True, check=True).stdout.strip()
    return f"{model}, {cores} cores, Linux {platform.release().split('-')[0]}, {platform.machine()}"


def main():
    results, docs = map(pathlib.Path, sys.argv[1:])
    facts = {"machine": machine(), "coverage": coverage(results),
             "aims": ", ".join(f"{aim} % of {of}" for _, of, aim in COVERAGE_AIMS), "speed": speed.table(results) or NOT_RUN,
             "peers": lines(results, "peers"), "static": line(results, "static"), "release": suite(results, "release"),
             "tests": suite(results, "dev"), "asan": suite(results, "asan"), "tsan": suite(results, "tsan"),
             "calls": without_faults(lines(results, "calls")), "faults": faults(results), "late": lines(results, "late"), "fuzz": lines(results, "fuzz")}
    for page in ("reliability", "performance"):
        template = string.Template((HERE / f"{page}.md.in").read_text(encoding="utf-8"))
        (docs / f"{page}.md").write_text(template.substitute(facts), encoding="utf-8")


if __name__ == "__main__":
    main()
