#!/usr/bin/env python3
"""How far the pictures of a Hugin project are from where a generated shoot
rendered them (its ground-truth.csv), once the one rotation of the whole
panorama is taken out (the mean of the per-picture differences).

    scripts/pto-angle-error.py <project.pto> <ground-truth.csv> [--true-angles <out.pto>]

Prints "pictures N largest X roll Y" in degrees: X between where a picture
looks and where it should, Y its largest turn about its view.

--true-angles writes a copy of the project (canvas, lenses, every other
setting) whose pictures stand at their true angles, turned by the same one
rotation of the whole panorama so that they fill the project's canvas as its
own pictures do."""
import csv
import math
import os
import re
import sys


def multiply(a, b):
    return (a[0] * b[0] - a[1] * b[1] - a[2] * b[2] - a[3] * b[3],
            a[0] * b[1] + a[1] * b[0] + a[2] * b[3] - a[3] * b[2],
            a[0] * b[2] - a[1] * b[3] + a[2] * b[0] + a[3] * b[1],
            a[0] * b[3] + a[1] * b[2] - a[2] * b[1] + a[3] * b[0])


def conjugate(q):
    return (q[0], -q[1], -q[2], -q[3])


def axis_angle(axis, degrees):
    q = [math.cos(math.radians(degrees) / 2), 0.0, 0.0, 0.0]
    q[axis] = math.sin(math.radians(degrees) / 2)
    return tuple(q)


def camera(yaw, pitch, roll):
    # Yaw about the vertical, then pitch about the camera's horizontal axis,
    # then roll about its view (x).
    return multiply(multiply(axis_angle(3, -yaw), axis_angle(2, -pitch)), axis_angle(1, roll))


def view(q):
    v = multiply(multiply(q, (0.0, 1.0, 0.0, 0.0)), conjugate(q))
    return v[1:]


def angles(q):
    """(yaw, pitch, roll) in degrees of a camera rotation, as camera() takes them."""
    x, y, z = view(q)
    pitch = math.degrees(math.asin(max(-1.0, min(1.0, z))))
    yaw = math.degrees(math.atan2(-y, x))
    d = multiply(conjugate(camera(yaw, pitch, 0.0)), q)
    roll = math.degrees(2 * math.atan2(d[1], d[0]))
    roll = (roll + 540.0) % 360.0 - 180.0
    return yaw, pitch, roll


def write_true_angles(path, out, rotation, truth):
    """Copies the project at path to out with every picture's y, p and r set
    to rotation applied to its true angles, and its file named by an absolute
    path."""
    folder = os.path.dirname(os.path.abspath(path))
    lines = []
    for line in open(path, encoding="utf-8"):
        if line.startswith("i "):
            name = re.search(r' n"([^"]*)"', line)
            head, tail = line[:name.start()], line[name.end():]
            values = angles(multiply(rotation, camera(*truth[os.path.basename(name.group(1))])))
            for key, value in zip(("y", "p", "r"), values):
                head = re.sub(r" %s=?[-0-9.e+]+" % key, " %s%.6f" % (key, value), head, count=1)
            picture = os.path.normpath(os.path.join(folder, name.group(1)))
            line = '%s n"%s"%s' % (head, picture, tail)
        lines.append(line)
    with open(out, "w", encoding="utf-8") as f:
        f.writelines(lines)


def read_project(path):
    """[(file name, yaw, pitch, roll)] following =<image> links."""
    images = []
    for line in open(path, encoding="utf-8"):
        if not line.startswith("i "):
            continue
        name = re.search(r' n"([^"]*)"', line).group(1)
        values = {}
        for key in ("y", "p", "r"):
            m = re.search(r" %s(=?[-0-9.e+]+)" % key, line)
            values[key] = m.group(1) if m else "0"
        images.append((os.path.basename(name), values))
    resolved = []
    for name, values in images:
        angles = []
        for key in ("y", "p", "r"):
            v = values[key]
            seen = 0
            while v.startswith("=") and seen < len(images):
                v = images[int(v[1:])][1][key]
                seen += 1
            angles.append(float(v))
        resolved.append((name, *angles))
    return resolved


def read_truth(path):
    truth = {}
    with open(path, encoding="utf-8") as f:
        rows = [line for line in f if not line.startswith("#")]
    for row in csv.DictReader(rows):
        truth[row["image"]] = (float(row["yaw"]), float(row["pitch"]), float(row["roll"]))
    return truth


def main():
    args = sys.argv[1:]
    true_angles = None
    if len(args) == 4 and args[2] == "--true-angles":
        true_angles = args[3]
        args = args[:2]
    if len(args) != 2:
        sys.exit(__doc__)
    project_path, truth_path = args
    project = read_project(project_path)
    truth = read_truth(truth_path)
    found, expected = [], []
    for name, yaw, pitch, roll in project:
        if name not in truth:
            sys.exit("%s is not in the ground truth" % name)
        found.append(camera(yaw, pitch, roll))
        expected.append(camera(*truth[name]))
    if not found:
        sys.exit("no pictures in %s" % project_path)
    mean = [0.0] * 4
    first = None
    for f, e in zip(found, expected):
        offset = multiply(f, conjugate(e))
        first = first or offset
        sign = -1.0 if sum(a * b for a, b in zip(offset, first)) < 0 else 1.0
        mean = [m + sign * o for m, o in zip(mean, offset)]
    norm = math.sqrt(sum(m * m for m in mean))
    mean = tuple(m / norm for m in mean)
    largest = largest_roll = 0.0
    for f, e in zip(found, expected):
        placed = multiply(mean, e)
        u, w = view(placed), view(f)
        cross = (u[1] * w[2] - u[2] * w[1], u[2] * w[0] - u[0] * w[2], u[0] * w[1] - u[1] * w[0])
        off = math.degrees(math.atan2(math.sqrt(sum(c * c for c in cross)),
                                      sum(a * b for a, b in zip(u, w))))
        d = multiply(conjugate(placed), f)
        roll = abs((math.degrees(2 * math.atan2(d[1], d[0])) + 540.0) % 360.0 - 180.0)
        largest = max(largest, off)
        largest_roll = max(largest_roll, roll)
    print("pictures %d largest %.3f roll %.3f" % (len(found), largest, largest_roll))
    if true_angles:
        write_true_angles(project_path, true_angles, mean, truth)


if __name__ == "__main__":
    main()
