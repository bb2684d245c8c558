"""The table of speed, from what the benchmarks left: for script/bench, and for the page that pages.py prints.

usage: speed.py RESULTS_FOLDER
"""

import json
import operator
import pathlib
import sys

# Benchmark, its counter, what it measures. The target stands in the benchmark, as a counter beside that one.
ROWS = [
    ("Query/cores:1", "ratio", "query through an attribute"),
    ("Query/cores:2", "ratio", "the same on two cores"),
    ("Query/cores:1", "p99_ratio", "the slowest hundredth of them, to the floor's"),
    ("QueryWithStatus/cores:1", "ratio", "query with status check"),
    ("QueryWithStatus/cores:2", "ratio", "the same on two cores"),
    ("SetWithStatus/cores:1", "ratio", "set with status check"),
    ("SetWithStatus/cores:2", "ratio", "the same on two cores"),
    ("SetWithStatus/cores:1", "held_back", "of these sets, those that took 20 to 60 ms"),
    ("SetWithStatus/cores:1", "floor_held_back", "the same of the floor's: the machine's doing"),
    ("Set/cores:1", "ratio", "set without"),
    ("GetOneAttribute", "real_time", "simulated get"),
    ("SetOneAttribute", "real_time", "simulated set"),
    ("GetMixedAttributes", "real_time", "simulated get of mixed attributes"),
    ("SetMixedAttributes", "real_time", "simulated set of mixed attributes"),
    ("TwoThreads", "ratio", "two threads on two sessions, to the time of one"),
    ("List/cores:1", "ratio", "list of 4000 points in one line"),
    ("List/cores:2", "ratio", "the same on two cores"),
    ("SendFile/cores:1", "ratio", "file of 64 MiB to the instrument"),
    ("SendFile/cores:2", "ratio", "the same on two cores"),
    ("SendFile/cores:1", "memory_KiB", "memory for it, beside the caller's"),
    ("ReadFile/cores:1", "ratio", "file of 64 MiB from the instrument"),
    ("ReadFile/cores:2", "ratio", "the same on two cores"),
    ("ReadFile/cores:1", "memory_KiB", "memory for it, beside the caller's"),
    ("OpenClose/cores:1", "ratio", "open and close"),
    ("OpenClose/cores:2", "ratio", "the same on two cores"),
    ("HislipQuery/cores:1", "ratio_own", "HiSLIP query, to its own bytes"),
    ("Vxi11Query/cores:1", "ratio_own", "VXI-11 query, to its own bytes"),
    ("Vxi11Query/cores:1", "ratio_raw", "VXI-11 query, to a raw socket's"),
    ("SendFile<bench::HislipPeer>/cores:1", "speed", "file of 64 MiB over HiSLIP to the instrument, speed to a raw socket's"),
    ("ReadFile<bench::HislipPeer>/cores:1", "speed", "the same from the instrument"),
    ("SendFile<bench::Vxi11Peer>/cores:1", "speed", "file of 64 MiB over VXI-11 to the instrument, speed to a raw socket's"),
    ("ReadFile<bench::Vxi11Peer>/cores:1", "speed", "the same from the instrument"),
]
# How a counter is printed, and thus judged; the others are ratios.
FORMS = {"real_time": "{:.1f} ns", "memory_KiB": "{:.0f} KiB", "held_back": "{:.0f}", "floor_held_back": "{:.0f}"}
SENSES = {"at_most": operator.le, "at_least": operator.ge, "under": operator.lt}


def benchmarks(results):
    found = {}
    for path in sorted(results.glob("*_bench.json")):
        for row in json.loads(path.read_text(encoding="utf-8") or '{"benchmarks": []}')["benchmarks"]:
            if row.get("error_occurred"):
                print(f"speed.py: {row['name']} has no figures: {row.get('error_message')}", file=sys.stderr)
            else:
                found[row["name"].replace("/iterations:1", "")] = row
    return found


def judged(row, counter):
    """The cells of a figure, its target and whether it is met."""
    form = FORMS.get(counter, "{:.2f}")
    figure = form.format(row[counter])
    for sense, holds in SENSES.items():
        if f"{counter}_{sense}" in row:
            target = form.format(row[f"{counter}_{sense}"])
            met = holds(float(figure.split()[0]), float(target.split()[0]))
            return [figure, f"{sense.replace('_', ' ')} {target}", "met" if met else "**missed**"]
    return [figure, "", ""]


def table(results):
    """A line for each row that was measured; none when nothing was."""
    found = benchmarks(results)
    rows = [[work, *judged(found[name], counter)] for name, counter, work in ROWS if name in found]
    if not rows:
        return ""
    return "\n".join("| " + " | ".join(cells) + " |" for cells in [["Work", "Measured", "Target", ""], ["---"] * 4, *rows])


if __name__ == "__main__":
    print(table(pathlib.Path(sys.argv[1])) or "nothing of the table was measured")
