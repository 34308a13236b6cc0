#!/usr/bin/python3
"""report.py [--print] RESULTS... : makes the tables of docs/performance.md and docs/speed/*.svg from
the results of several runs of zsg_bench (--results=FILE). Of a time it says the median of the runs,
of a comparison the ratio of each run: what differs between runs is noise, and is seen.
The tables of zsg_workbench_figures stand beside RESULTS, as window-1.md and so on.
--print writes the tables to the terminal, and nothing else."""

import json
import pathlib
import re
import statistics
import sys

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent
NOISE = 1.15  # a machine that also does other things is noisier than the targets are sharp

AREAS = {  # by the letters and numbers that a row begins with
    "0": "The whole", "1": "Variants", "2": "Hashes", "3": "Events", "4": "Undo",
    "5": "Weaves as text", "6": "Measured metals", "7": "Gradients and curves", "8": "Weaves",
    "9": "Edits by id", "growth": "Colour database", "12": "CMF schemas", "15": "Brushes",
    "L": "Light layers", "P": "Painting", "20": "Pictures",
}

# Title, what x counts, and the curves: row, workload (x is what the group matches), contestant, label.
CURVES = {
    "colours": ("One edit of one colour", "colours in the scene", [
        ("growth", "setColor and pushColor, cold, (.*)", "ours", "edit, a random colour"),
        ("growth", "getColorParameters, cold, (.*)", "ours", "first reading"),
        ("growth", "setColor and pushColor, warm, (.*)", "ours", "edit, a known colour"),
        ("growth", "colorFromId, warm, (.*)", "ours", "colorFromId"),
    ]),
    "lists": ("What walks a list", "colours, or colorways", [
        ("growth", "applyColorway, 10 pairs, (.*) colorways", "ours", "applyColorway"),
        ("growth", "both lists after a rename, (.*)", "ours", "lists after a rename"),
        ("growth", "both lists after a rename, (.*)", "the renderer's three lists",
         "the renderer's lists alone"),
    ]),
    "events": ("One event", "listeners", [
        ("3a", r"post, (\d+) of \d+", "Qt direct signal", "Qt signal, direct"),
        ("3a", r"post, (\d+) of \d+", "ours", "post, all subscribed"),
        ("3b", r"post, 10 of (\d+)", "ours", "post, 10 subscribed"),
    ]),
    "lights": ("Light layers", "lights in the scene", [
        ("L1", "setItemsLightLayer of all, (.*) lights", "ours", "assign all"),
        ("L1", "sync, (.*) lights", "ours", "sync"),
        ("L1", "getLayerItems, (.*) lights", "ours", "lights of a layer"),
        ("L2", "add and remove 10 lights, undo both, (.*) lights", "ours", "edit 10, undo"),
        ("L2", "layerName, (.*) lights", "ours", "layerName"),
    ]),
    "layers": ("One edit of a paint layer", "layers of the surface", [
        ("P1", "add 10, (.*) layers", "ours", "add 10"),
        ("P1", "undo and redo of a move, (.*) layers", "ours", "undo, redo a move"),
        ("P1", "delete and undo, (.*) layers", "ours", "delete, undo"),
        ("P1", "rename, (.*) layers", "ours", "rename"),
    ]),
    "gradient": ("A gradient of N stops, one by one", "stops", [
        ("7a", r"addColorStop one by one, N = (\d+)", "QGradient::setColorAt", "QGradient"),
        ("7a", r"addColorStop one by one, N = (\d+)", "ours", "ours"),
    ]),
}

# Colours stand in the file as variables, so that one picture serves light and dark pages.
LIGHT = {"surface": "#fcfcfb", "ink": "#0b0b0b", "soft": "#52514e", "grid": "#e1e0d9",
         "s0": "#2a78d6", "s1": "#eb6834", "s2": "#1baf7a", "s3": "#eda100", "s4": "#4a3aa7"}
DARK = {"surface": "#1a1a19", "ink": "#ffffff", "soft": "#c3c2b7", "grid": "#2c2c2a",
        "s0": "#3987e5", "s1": "#d95926", "s2": "#199e70", "s3": "#c98500", "s4": "#9085e9"}

plt.rcParams.update({
    "svg.fonttype": "none", "figure.dpi": 72, "svg.hashsalt": "zscenegraph", "font.family": "sans-serif",
    "font.sans-serif": ["DejaVu Sans"], "font.size": 10, "axes.edgecolor": LIGHT["grid"],
    "axes.labelcolor": LIGHT["soft"], "axes.titlecolor": LIGHT["ink"], "text.color": LIGHT["ink"],
    "xtick.color": LIGHT["soft"], "ytick.color": LIGHT["soft"], "grid.color": LIGHT["grid"],
    "axes.facecolor": LIGHT["surface"], "figure.facecolor": LIGHT["surface"],
    "axes.spines.top": False, "axes.spines.right": False, "axes.titlelocation": "left",
})


def time(seconds):
    for unit in ("s", "ms", "us", "ns"):
        if seconds >= 1 or unit == "ns":
            return f"{seconds:.3g} {unit}"
        seconds *= 1000


def amount(value, is_bytes):
    if not is_bytes:
        return time(value)
    return next(f"{value * 1e9 / size:.3g} {unit}" for size, unit in
                ((1e6, "MB"), (1e3, "kB"), (1, "bytes")) if value * 1e9 >= size or size == 1)


def count(value):
    for size, unit in ((1e6, " M"), (1e3, " k"), (1, "")):
        if value >= size:
            return f"{value / size:g}{unit}"
    return f"{value:g}"


def number(text):
    value = re.match(r"(\d[\d,]*)( k\b| M\b)?", text)
    return int(value[1].replace(",", "") or 0) * {None: 1, " k": 1000, " M": 1000000}[value[2]]


def order(key):
    """By area, and numbers by their value, also those that are written 10 k or 1,000."""
    return [[list(AREAS.values()).index(area(key[0])), ""]] + [[number(part) if part[0].isdigit() else 0, part]
            for part in re.findall(r"\d[\d,]*(?: [kM]\b)?|\D+", "|".join(key))]


def area(row):
    """A row is its area's number and a letter, or its letter and a number."""
    return AREAS.get(row) or AREAS[re.match(r"\d+|[A-Z]", row)[0]]


class Comparison:
    """Ours beside one contestant of one workload, in every run."""

    def __init__(self, row, workload, name, ratios, theirs, at_most, is_bytes):
        self.row, self.workload, self.name = row, workload, name
        self.ratios, self.at_most = ratios, at_most
        self.theirs = amount(theirs, is_bytes)
        self.held = [ratio <= at_most * NOISE for ratio in ratios] if at_most else []

    def line(self):
        low, high = (f"{ratio:.3g}" for ratio in (min(self.ratios), max(self.ratios)))
        ratio = low if low == high else f"{low} to {high}"
        target = f"<= {self.at_most:.3g}" if self.at_most else ""
        holds = ""
        if self.held:
            holds = "yes" if all(self.held) else "in some runs" if any(self.held) else "**no**"
        return f"| {self.row} | {self.workload} | {self.name} | {self.theirs} | {ratio} | {target} | {holds} |"


class Results:
    def __init__(self, paths):
        runs = [{(case["row"], case["workload"]): case for case in json.loads(path.read_text())}
                for path in paths]
        self.cases = sorted((key for key in runs[0] if all(key in run for run in runs)), key=order)
        self.runs = runs

    def times(self, key, name):
        """Of one contestant, one per run; nothing where it was not measured."""
        found = [entry["median"] for run in self.runs if key in run
                 for entry in run[key]["seconds"] if entry["name"] == name]
        return found if len(found) == len(self.runs) else []

    def comparisons(self, key):
        ours, case = self.times(key, "ours"), self.runs[0][key]
        def made(name, other, at_most, shown):
            theirs = self.times(other, name)
            if ours and theirs:
                yield Comparison(*key, shown, [a / b for a, b in zip(ours, theirs)],
                                 statistics.median(theirs), at_most, case.get("isBytes"))
        wanted = {t["against"]: t["atMost"] for t in case["targets"] if not t["workload"]}
        for entry in case["seconds"]:
            if entry["name"] != "ours":
                yield from made(entry["name"], key, wanted.get(entry["name"]), entry["name"])
        for t in case["targets"]:
            if t["workload"]:
                yield from made(t["against"], (key[0], t["workload"]), t["atMost"],
                                f"{t['against']}: {t['workload']}")


def tables(results):
    by_area = {name: [] for name in AREAS.values()}
    for key in results.cases:
        ours = results.times(key, "ours")
        if ours:
            lines = by_area[area(key[0])]
            shown = amount(statistics.median(ours), results.runs[0][key].get("isBytes"))
            lines.append(f"| {key[0]} | {key[1]} | ours | {shown} | | | |")
            lines += [comparison.line() for comparison in results.comparisons(key)]
    text = ""
    for name, lines in by_area.items():
        if lines:
            text += (f"### {name}\n\n| row | workload | contestant | median | ours / it | target "
                     "| holds |\n|---|---|---|---|---|---|---|\n" + "\n".join(lines) + "\n\n")
    return text


def summary(results):
    judged = [c for key in results.cases for c in results.comparisons(key) if c.at_most]
    missed = [c for c in judged if not any(c.held)]
    unsure = [c for c in judged if any(c.held) and not all(c.held)]
    runs = "each of {} runs".format(len(results.runs)) if len(results.runs) > 1 else "the one run"
    text = (f"Of {len(judged)} comparisons that have a target {len(judged) - len(missed) - len(unsure)} "
            f"hold it in {runs}, {len(unsure)} in some, {len(missed)} in none")
    text += f"; {NOISE} times the target counts as holding it, for noise."
    if not missed:
        return text + "\n"
    text += (" Those of none:\n\n| row | workload | against | ours / it | target |\n|---|---|---|---|---|\n")
    for c in missed:
        text += (f"| {c.row} | {c.workload} | {c.name} | {statistics.median(c.ratios):.3g} "
                 f"| <= {c.at_most:.3g} |\n")
    return text


def headlines(results):
    """What a reader takes along, in numbers that are never typed by hand."""
    def both(workload):
        return " to ".join(dict.fromkeys(time(t) for t in sorted(results.times(("0", workload), "ours"))))
    composite = "composite 2048 x 2048, 10 normal layers"
    rates = sorted(round(2048 * 2048 / t / 1e6) for t in results.times(("0", composite), "ours"))
    return (f"- One edit of a colour in a scene of 100,000, from the call to the listener's return: "
            f"{both('edit to event, 100 k colours')}.\n"
            f"- Ten layers of 2048 x 2048 texels are composited in {both(composite)}, "
            f"{' to '.join(dict.fromkeys(map(str, rates)))} million texels a second.\n"
            f"- 100,000 colours are loaded in {both('load 100 k colours')}; 100,000 mixed edits upon them "
            f"are made, undone and redone in {both('100 k mixed edits, undone, redone, 100 k colours')}.\n")


def window(paths):
    """The tables of several runs of zsg_workbench_figures as one."""
    runs = [re.findall(r"^\| (.*?) \| (.*?) \| (\d.*?) \|(.*)$", path.read_text(), re.M) for path in paths]
    text = "| what | each run | limit | holds |\n|---|---|---|---|\n"
    for rows in zip(*runs):
        what, _, limit, _ = rows[0]
        held = [not mark.strip() for _, _, _, mark in rows]
        text += (f"| {what} | {', '.join(value for _, value, _, _ in rows)} "
                 f"| {limit} | {'yes' if all(held) else 'in some runs' if any(held) else '**no**'} |\n")
    return text


def save(figure, name, description):
    folder = ROOT / "docs/speed"
    path = folder / f"{name}.svg"
    figure.savefig(path, metadata={"Date": None, "Creator": None, "Title": description})
    plt.close(figure)
    text = path.read_text()
    for key, value in LIGHT.items():
        text = text.replace(value, f"var(--{key})")
    rules = lambda colors: "".join(f"--{key}:{value};" for key, value in colors.items())
    style = (f"<style>svg{{{rules(LIGHT)}}}@media (prefers-color-scheme:dark)"
             f"{{svg{{{rules(DARK)}}}}}</style>")
    text = re.sub(r"(<svg [^>]*>)", lambda m: m[1] + "\n " + style, text, count=1)
    path.write_text(re.sub(r" +\n", "\n", text))


def draw_growth(results, name):
    title, counted, curves = CURVES[name]
    figure, axes = plt.subplots(figsize=(6.4, 3.9))
    ends = []
    for index, (row, pattern, contestant, label) in enumerate(curves):
        points = []
        for key in results.cases:
            match = re.fullmatch(pattern, key[1]) if key[0] == row else None
            if match and results.times(key, contestant):
                points.append((number(match[1]), statistics.median(results.times(key, contestant))))
        if points:
            points.sort()
            axes.plot(*zip(*points), color=LIGHT[f"s{index}"], linewidth=2, marker="o", markersize=5,
                      linestyle="-" if contestant == "ours" else "--")
            ends.append([points[-1][1], label, points[-1][0]])
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.set_title(title, pad=12)
    axes.set_xlabel(counted)
    axes.xaxis.set_major_formatter(lambda x, _: count(x))
    axes.yaxis.set_major_formatter(lambda y, _: time(y))
    axes.minorticks_off()
    axes.grid(True, linewidth=0.8)
    axes.tick_params(length=0)
    # Each curve is named at its end; names that would touch are moved apart.
    figure.subplots_adjust(left=0.12, right=0.66, bottom=0.15, top=0.88)
    low, high = (axes.transData.transform((1, y))[1] for y in axes.get_ylim())
    places = []
    for y, label, x in sorted(ends):
        place = axes.transData.transform((x, y))[1]
        places.append(max(place, places[-1] + 0.06 * (high - low)) if places else place)
        axes.annotate(label, (x, places[-1]), xycoords=("data", "figure pixels"),
                      xytext=(10, 0), textcoords="offset points", va="center", color=LIGHT["ink"])
    save(figure, name, f"{title}: time over the number of {counted}")


def draw_peers(results):
    figure, axes = plt.subplots(figsize=(8, 5))
    kinds = {"s0": "holds its target", "s1": "misses it", "soft": "has no target"}
    drawn = []
    for key in results.cases:
        for c in results.comparisons(key):
            if not c.name.startswith("ours"):
                kind = "soft" if not c.at_most else "s0" if any(c.held) else "s1"
                drawn.append((area(c.row), statistics.median(c.ratios), kind))
    names = [name for name in AREAS.values() if any(entry[0] == name for entry in drawn)]
    for kind, label in kinds.items():
        some = [(ratio, -names.index(name)) for name, ratio, k in drawn if k == kind]
        if some:
            axes.scatter(*zip(*some), s=42, label=label, linewidths=1.2, edgecolors=LIGHT[kind],
                         facecolors="none" if kind == "soft" else LIGHT[kind])
    axes.axvline(1, color=LIGHT["soft"], linewidth=1)
    axes.set_xscale("log")
    axes.xaxis.set_major_formatter(lambda x, _: f"{x:g}")
    axes.set_yticks([-i for i in range(len(names))], names)
    axes.set_xlabel("time of ours / time of the other (left of 1: ours is faster)")
    axes.set_title("Beside peers and floors: one circle is one comparison", pad=26)
    axes.minorticks_off()
    axes.grid(True, linewidth=0.8)
    axes.set_axisbelow(True)
    axes.tick_params(length=0)
    axes.legend(loc="lower left", bbox_to_anchor=(0, 1), ncols=3, frameon=False,
                handletextpad=0.2, borderaxespad=0.1)
    figure.subplots_adjust(left=0.22, right=0.96, bottom=0.12, top=0.86)
    save(figure, "peers", "The library's time beside that of peers and floors, by area")


def main():
    only_print = sys.argv[1] == "--print"
    paths = [pathlib.Path(path) for path in sys.argv[1 + only_print:]]
    results = Results(paths)
    if only_print:
        print(tables(results))
        return
    document = ROOT / "docs/performance.md"
    text = document.read_text()
    parts = {"tables": tables(results), "summary": summary(results), "headlines": headlines(results)}
    figures = sorted(paths[0].parent.glob("window-*.md"))
    if figures:
        parts["window"] = window(figures)
    for mark, part in parts.items():
        begin, end = f"<!-- {mark} begin -->\n", f"<!-- {mark} end -->"
        head, rest = text.split(begin)
        text = head + begin + part + end + rest.split(end)[1]
    document.write_text(text)
    for name in CURVES:
        draw_growth(results, name)
    draw_peers(results)


if __name__ == "__main__":
    main()
