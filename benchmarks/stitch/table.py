#!/usr/bin/env python3
"""The stitching benchmark's table, from the results run.sh collects
(results.tsv: one line per variant and run).

    table.py <results.tsv> --shoot NAME --size WxH --started WHEN
             --load-start L --load-end L

Prints Markdown: the median wall and CPU time of every variant, its peak
memory and largest angle error over the runs, its last panorama's size, the
ratios of ours to the stock pipeline and to the render floor (the floor
variant of least CPU time), and the steps of every variant's last run."""
import argparse
import csv
import os
import re
import statistics
import struct

LABELS = {
    "ours-clauss": "ours: Clauss import + stitch",
    "ours-papywizard": "ours: Papywizard import + stitch",
    "stock": "stock pipeline",
    "floor-enblend": "floor: nona + enblend",
    "floor-verdandi": "floor: nona + verdandi",
}


def picture_size(path):
    """(width, height) of a TIFF or JPEG file, None when it cannot be read."""
    try:
        with open(path, "rb") as f:
            data = f.read(1 << 20)
    except OSError:
        return None
    if data[:2] in (b"II", b"MM"):
        order = "<" if data[:2] == b"II" else ">"
        (offset,) = struct.unpack(order + "I", data[4:8])
        with open(path, "rb") as f:
            f.seek(offset)
            (count,) = struct.unpack(order + "H", f.read(2))
            entries = f.read(12 * count)
        size = {}
        for i in range(count):
            tag, kind, _, value = struct.unpack(order + "HHI4s", entries[12 * i:12 * i + 12])
            if tag in (256, 257):
                size[tag] = struct.unpack(order + ("H" if kind == 3 else "I"),
                                          value[:2] if kind == 3 else value)[0]
        return (size[256], size[257]) if len(size) == 2 else None
    if data[:2] == b"\xff\xd8":
        i = 2
        while i + 9 < len(data):
            if data[i] != 0xFF:
                return None
            marker = data[i + 1]
            (length,) = struct.unpack(">H", data[i + 2:i + 4])
            if marker in (0xC0, 0xC1, 0xC2, 0xC3, 0xC5, 0xC6, 0xC7, 0xC9, 0xCA, 0xCB, 0xCD,
                          0xCE, 0xCF):
                height, width = struct.unpack(">HH", data[i + 5:i + 9])
                return width, height
            i += 2 + length
    return None


def ratio(a, b):
    return "%.2f" % (a / b) if b > 0 else "-"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("results")
    parser.add_argument("--shoot", required=True)
    parser.add_argument("--size", required=True)
    parser.add_argument("--started", required=True)
    parser.add_argument("--load-start", required=True)
    parser.add_argument("--load-end", required=True)
    args = parser.parse_args()

    runs = {}
    with open(args.results, encoding="utf-8") as f:
        for row in csv.DictReader(f, delimiter="\t"):
            runs.setdefault(row["variant"], []).append(row)

    summary = {}
    for name, rows in runs.items():
        failed = sum(1 for r in rows if r["status"] != "0")
        errors = [float(r["error"]) for r in rows if r["error"] != "-"]
        last = rows[-1]
        size = picture_size(last["output"])
        summary[name] = {
            "runs": len(rows),
            "failed": failed,
            "wall": statistics.median(float(r["wall"]) for r in rows),
            "cpu": statistics.median(float(r["cpu"]) for r in rows),
            "peak": max(int(r["peak_kb"]) for r in rows) / 1024.0,
            "pictures": last["pictures"],
            "error": max(errors) if errors else None,
            "size": size,
            "bytes": os.path.getsize(last["output"]) if os.path.isfile(last["output"]) else None,
            "steps": last["steps"],
        }

    floors = [n for n in summary if n.startswith("floor-") and summary[n]["failed"] == 0]
    floor = min(floors, key=lambda n: summary[n]["cpu"]) if floors else None
    stock = summary.get("stock")

    if args.shoot.startswith("sample"):
        shoot = "the bundled sample (10 positions × 3 exposures, 400 × 300)"
    else:
        shoot = "a generated 360° shoot (3 rows × 12 positions, one exposure, %s, 35 mm)" % (
            args.size.replace("x", " × "))
    repeats = max(s["runs"] for s in summary.values())
    print("Stitching benchmark, %s; %s; %d run%s, median times; %d cores, load average %s at "
          "the start, %s at the end." % (args.started, shoot, repeats, "" if repeats == 1 else "s",
                                         os.cpu_count(), args.load_start, args.load_end))
    print()
    print("| Run | Pictures | Wall s | CPU s | Peak MB | Panorama | MB | Largest error ° "
          "| CPU / stock | Wall / stock | CPU / floor | Wall / floor |")
    print("|---|---|---|---|---|---|---|---|---|---|---|---|")
    for name, s in summary.items():
        label = LABELS.get(name, name)
        if name == floor:
            label += " (floor)"
        if s["failed"]:
            label += " **failed %d of %d**" % (s["failed"], s["runs"])
        cells = [label, s["pictures"], "%.1f" % s["wall"], "%.1f" % s["cpu"], "%.0f" % s["peak"],
                 "%d × %d" % s["size"] if s["size"] else "-",
                 "%.1f" % (s["bytes"] / 1e6) if s["bytes"] is not None else "-",
                 "%.3f" % s["error"] if s["error"] is not None else "-"]
        if name.startswith("ours-"):
            for other in (stock, summary.get(floor) if floor else None):
                if other is None:
                    cells += ["-", "-"]
                else:
                    cells += [ratio(s["cpu"], other["cpu"]), ratio(s["wall"], other["wall"])]
        else:
            cells += [""] * 4
        print("| " + " | ".join(cells) + " |")
    print()
    print("Steps of the last run (wall / CPU s, peak MB):")
    print()
    for name, s in summary.items():
        steps = []
        try:
            with open(s["steps"], encoding="utf-8") as f:
                for line in f:
                    fields = line.rstrip("\n").split("\t")
                    if len(fields) != 6 or not re.match(r"^[0-9.]+$", fields[1]):
                        continue
                    label, wall, user, system, peak, status = fields
                    steps.append("%s %.1f / %.1f, %.0f%s" % (
                        label, float(wall), float(user) + float(system), int(peak) / 1024.0,
                        "" if status == "0" else " (exit %s)" % status))
        except OSError:
            pass
        print("- %s: %s" % (LABELS.get(name, name), "; ".join(steps) if steps else "none"))
        stitch_log = os.path.join(os.path.dirname(s["steps"]), "log.txt")
        if name.startswith("ours-") and os.path.isfile(stitch_log):
            with open(stitch_log, encoding="utf-8", errors="replace") as f:
                text = f.read().replace("\r", "\n")
            done = re.findall(r"^\[[0-9]+/[0-9]+\] ([^:\n]*):.*done in ([0-9.]+) s", text, re.M)
            if done:
                print("  - inside the stitch (wall s): " + "; ".join(
                    "%s %s" % (step, seconds) for step, seconds in done))


if __name__ == "__main__":
    main()
