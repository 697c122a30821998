"""Prints what the benchmarks measured as one table, with ratios to the bare loop over the same
flights in the same run.

Call: ratios.py ENGINE.json FORM.json [save]     "save" also writes bench/results.md

The figures are the least of all repetitions: what else runs on the machine only ever adds time.
"""
import json
import sys
from pathlib import Path

# Benchmark, what it is, target, and the bare loop over its flights.
ENGINE = [
    ("bareLoop", "bare loop, one flight", "", "bareLoop"),
    ("carry", "`SimulateCarry`", "at most 1.10", "bareLoop"),
    ("flight", "`SimulateFlight`, with path and outcome", "at most 1.15", "bareLoop"),
]
# Rows of lanes that the processor lacks stay away.
MANY = [
    ("bareMany/2000", "bare loop, 2,000 flights", "", "bareMany/2000"),
    ("many/AVX3", "in lanes of AVX-512, one thread", "at most 0.25", "bareMany/2000"),
    ("many/AVX2", "in lanes of AVX2, one thread", "at most 0.40", "bareMany/2000"),
    ("many/SSE4", "in lanes of SSE4, one thread", "", "bareMany/2000"),
    ("many/threads/real_time", "in the widest lanes, two threads", "at most 0.6 of one thread",
     "bareMany/2000"),
    ("map/real_time", "12,000 flights by all that the machine has", "below 0.2 s on two cores",
     "bareMany/12000"),
    ("engineOfBatch/real_time", "48,000 flights by all that the machine has", "", "engineOfBatch/real_time"),
    ("batchCommand/real_time", "`parabolt-cli batch` over them, against the line above", "at most 1.25",
     "engineOfBatch/real_time"),
    ("importFile", "reading a file of 9,999 measured shots", ""),
    ("flyFile/real_time", "flying them by all that the machine has", "below 1 s"),
]
FORM = [
    ("spinStudy", "spin study from the defaults, computing alone", "", "bareSpinStudy"),
    ("longestSpinStudy", "221 flights, the longest spin study", "", "bareLongestSpinStudy"),
    ("batch", "batch over 12 irons, computing and drawing into shapes", "", "bareBatch"),
    ("draw/1/1", "drawing 1 data set, 1280 x 520", ""),
    ("draw/12/1", "drawing 12 data sets", ""),
    ("draw/24/1", "drawing 24 data sets", ""),
    ("draw/1/2", "drawing 1 data set at twice the density", ""),
    ("draw/12/2", "drawing 12 data sets at twice the density", ""),
    ("draw/24/2", "drawing 24 data sets at twice the density", ""),
    ("pressRun/iterations:20", "Run with 24 data sets, click to pixels", "below 16.7 ms"),
    ("movePointer", "the pointer over 24 curves, a move to pixels", "below 4 ms"),
    ("keepDesk/synced:0/real_time", "keeping the desk safe, 24 data sets, the form's time", "below 5 ms"),
    ("keepDesk/synced:1/real_time", "the same up to the synced file, off the form's way", ""),
    ("mapFirstPicture/1/real_time", "first picture of the carry map after a change", "below 16.7 ms"),
    ("mapFirstPicture/2/real_time", "the same at twice the density", "below 16.7 ms"),
    ("openMainForm/iterations:10", "opening the main form", ""),
    ("openClubEditor/iterations:10", "opening the club editor", ""),
    ("openPrintView/iterations:10", "opening the print view", ""),
]
MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3}


def rows(report, names):
    """One line each: what, microseconds, time against the bare loop, target."""
    least = {}
    for run in report["benchmarks"]:
        if run["run_type"] == "iteration":
            clock = "real_time" if run["run_name"].endswith("/real_time") else "cpu_time"
            time = run[clock] * MICROSECONDS[run["time_unit"]]
            least[run["run_name"]] = min(time, least.get(run["run_name"], time))
    for key, what, target, *bare in names:
        if key not in least:
            continue
        ratio = f"{least[key] / least[bare[0]]:.3f}" if bare else ""
        yield f"| {what} | {least[key]:.1f} | {ratio} | {target} |"


engine, form = (json.loads(Path(path).read_text(encoding="utf-8")) for path in sys.argv[1:3])
flight = next(run for run in engine["benchmarks"] if "steps" in run)
steps = flight["steps"]
least_ns = min(run["cpu_time"] for run in engine["benchmarks"]
               if run["run_name"] == "flight" and run["run_type"] == "iteration")
head = ["| | us | against the bare loop over the same flights | target |", "|---|---|---|---|"]
context = form["context"]
lines = [
    f"One flight of {steps:.0f} steps: {least_ns / steps:.1f} ns a step, {1e9 / least_ns:.0f} flights a second; "
    f"allocations a flight: {flight['allocations']:.3g}.",
    "", *head, *rows(engine, ENGINE),
    "", "Many flights at once, each for all clubs and in any weather:",
    "", *head, *rows(engine, MANY),
    "", "In the form, on a virtual display:",
    "", *head, *rows(form, FORM),
    "", f"Start to a painted main form, splash aside: {context['start_ms']} ms (target: below 500).",
    f"Resident memory with 24 data sets: {context['resident_mb']} MB (target: below 100).",
]
print("\n".join(lines))
if sys.argv[3:] == ["save"]:
    where = f"{context['num_cpus']} CPUs at {context['mhz_per_cpu']} MHz, {context['date'][:10]}"
    text = ["# Speed", "", f"Measured by `scripts/bench save` on {where}.", "", *lines, ""]
    Path(__file__).with_name("results.md").write_text("\n".join(text), encoding="utf-8")
