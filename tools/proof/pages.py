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

HERE = pathlib.Path(__file__).parent
NOT_RUN = "no result"

# Benchmark, its counter, what it measures, the counter of its target.
RATIOS = [
    ("Query/cores:1", "ratio", "query through an attribute", "target"),
    ("Query/cores:2", "ratio", "the same on two cores", "target"),
    ("QueryWithStatus/cores:1", "ratio", "query with status check", "target"),
    ("QueryWithStatus/cores:2", "ratio", "the same on two cores", "target"),
    ("Pause/cores:1", "ratio", "two queries of plain sockets, with 250 ns of computing behind each", None),
    ("Pause/cores:1", "ratio_of_sum", "what 250 ns twice would add by themselves", None),
    ("SetWithStatus/cores:1", "ratio", "set with status check", "target"),
    ("SetWithStatus/cores:2", "ratio", "the same on two cores", "target"),
    ("Set/cores:1", "ratio", "set without", "target"),
    ("TwoThreads", "ratio", "two threads on two sessions, to the time of one", "target"),
    ("List", "ratio", "list of 4000 points in one line", "target"),
    ("SendFile", "ratio", "file of 64 MiB to the instrument", "target"),
    ("ReadFile", "ratio", "file of 64 MiB from the instrument", "target"),
    ("OpenClose/cores:1", "ratio", "open and close", "target"),
    ("OpenClose/cores:2", "ratio", "the same on two cores", "target"),
    ("HislipQuery/cores:1", "ratio_own", "HiSLIP query, to its own bytes", "target_own"),
    ("Vxi11Query/cores:1", "ratio_own", "VXI-11 query, to its own bytes", None),
    ("Vxi11Query/cores:1", "ratio_raw", "VXI-11 query, to a raw socket's", "target_raw"),
]
# Of these more is better: a raw socket's time over the link's.
SPEEDS = [
    ("SendFile<bench::HislipPeer>", "file of 64 MiB over HiSLIP, to the instrument"),
    ("ReadFile<bench::HislipPeer>", "the same, from the instrument"),
    ("SendFile<bench::Vxi11Peer>", "file of 64 MiB over VXI-11, to the instrument"),
    ("ReadFile<bench::Vxi11Peer>", "the same, from the instrument"),
]
NANOSECONDS = [
    ("GetOneAttribute", "simulated get", 50),
    ("SetOneAttribute", "simulated set", 50),
    ("GetMixedAttributes", "simulated get of mixed attributes", 85),
]


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
    return f"{found['line_percent']:.1f} % of lines, {found['branch_percent']:.1f} % of branches"


def benchmarks(results):
    found = {}
    for path in sorted(results.glob("*_bench.json")):
        for row in json.loads(path.read_text(encoding="utf-8"))["benchmarks"]:
            if row.get("error_occurred"):
                print(f"pages.py: {row['name']} has no figures: {row.get('error_message')}", file=sys.stderr)
            else:
                found[row["name"].replace("/iterations:1", "")] = row
    return found


def verdict(met):
    return "met" if met else "**missed**"


def speed(results):
    found = benchmarks(results)
    if not found:
        return NOT_RUN
    table = ["| Work | Measured | Target | |", "|---|---|---|---|"]
    for name, counter, work, target in RATIOS:
        if name not in found:
            continue
        row = found[name]
        if target is None:
            table.append(f"| {work} | {row[counter]:.2f} | | |")
        else:
            table.append(f"| {work} | {row[counter]:.2f} | at most {row[target]:.2f} | "
                         f"{verdict(round(row[counter], 2) <= row[target])} |")
    for name, work in SPEEDS:
        if name in found:
            row = found[name]
            table.append(f"| {work} | {row['speed']:.2f} of a raw socket's speed | at least {row['target_speed']:.2f} | "
                         f"{verdict(row['speed'] >= row['target_speed'])} |")
    for name, work, most in NANOSECONDS:
        if name in found:
            time = found[name]["real_time"]
            table.append(f"| {work} | {time:.0f} ns | at most {most} ns | {verdict(time <= most)} |")
    return "\n".join(table)


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
    facts = {"machine": machine(), "coverage": coverage(results), "speed": speed(results),
             "peers": lines(results, "peers"), "static": line(results, "static"), "release": suite(results, "release"),
             "tests": suite(results, "dev"), "asan": suite(results, "asan"), "tsan": suite(results, "tsan"),
             "calls": without_faults(lines(results, "calls")), "faults": faults(results), "late": lines(results, "late"), "fuzz": lines(results, "fuzz")}
    for page in ("reliability", "performance"):
        template = string.Template((HERE / f"{page}.md.in").read_text(encoding="utf-8"))
        (docs / f"{page}.md").write_text(template.substitute(facts), encoding="utf-8")


if __name__ == "__main__":
    main()
