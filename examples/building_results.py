#!/usr/bin/env python3
"""Writes the "results" section of examples/building.json from a hand calculation.

The frame: columns W14X90 (A = 26.5 in^2, Iz = 999 in^4, Iy = 362 in^4, E = 29000 ksi) at
x = 0, 20, 40 ft and z = 0, 25 ft, storeys of 12 ft (y up), fixed at the base; the columns at
z = 0 (local angle 0) bend about their strong axis when the frame sways in X, those at z = 25
(local angle 90) when it sways in Z. The floors are rigid in their plane and the beams rigid
in bending (a shear building); the two tension-only braces of the first storey and the slab
are left out. docs/model-document.md explains the calculation. Run: python3 examples/building_results.py [--update] (prints the
section, or with --update writes it into examples/building.json).
"""
import json
import math
import os
import re
import sys

E, A, IZ, IY = 29000.0, 26.5, 999.0, 362.0  # ksi, in^2, in^4
H_FT = 12.0
H = H_FT * 12.0  # in
G = 386.09  # in/s^2
XS, ZS = [0.0, 20.0, 40.0], [0.0, 25.0]
COLUMNS = [(x, z) for z in ZS for x in XS]  # node order of each level: 1-6, 7-12, 13-18
TRIBUTARY = {0.0: 125.0, 20.0: 250.0, 40.0: 125.0}  # ft^2 per column, by x
FLOOR_AREA = 1000.0



def column_i(col, axis):
    """The moment of inertia a column bends with when the frame sways along axis 0 (X) or 2 (Z)."""
    strong_in_x = COLUMNS[col][1] == 0.0
    return IZ if strong_in_x == (axis == 0) else IY


def storey_k(axis):
    return sum(12 * E * column_i(col, axis) / H**3 for col in range(6))  # kip/in


K_X, K_Z = storey_k(0), storey_k(2)


def node(level, col):
    return level * 6 + col + 1


def spread(table, nodes):
    """The column-line nodes' values carried to every node of the model: a floor node moves
    with its floor (interpolated between the column lines around it, the floor being rigid
    in its plane and spanning between the columns); a node at or below the base (the
    footing) does not move."""
    out = {}
    for n in nodes:
        x, y, z = n["x"], n["y"], n["z"]
        level = round(y / H_FT)
        if y <= 0 or abs(y - level * H_FT) > 1e-9 or level > 2:
            out[n["id"]] = table.get(n["id"], [0.0] * 6) if n["id"] <= 6 else [0.0] * 6
            continue
        i = 0 if x <= 20.0 else 1
        tx = (x - XS[i]) / 20.0
        tz = z / 25.0
        corners = [(node(level, i), (1 - tx) * (1 - tz)), (node(level, i + 1), tx * (1 - tz)),
                   (node(level, 3 + i), (1 - tx) * tz), (node(level, 4 + i), tx * tz)]
        out[n["id"]] = [sum(w * table[c][k] for c, w in corners) for k in range(6)]
    return out


def zero_case():
    return {"disp": {n: [0.0] * 6 for n in range(1, 19)}, "react": {n: [0.0] * 6 for n in range(1, 7)},
            "loads": []}


def gravity(floor_psf, roof_psf, name):
    """Floor loads lumped at the columns by tributary area, carried axially by the columns."""
    c = zero_case()
    for col, (x, z) in enumerate(COLUMNS):
        p1 = floor_psf * TRIBUTARY[x] / 1000.0  # kip at level 1
        p2 = roof_psf * TRIBUTARY[x] / 1000.0   # kip at the roof
        if p1:
            c["loads"].append((node(1, col), name, "Y", -p1))
        if p2:
            c["loads"].append((node(2, col), name, "Y", -p2))
        lower, upper = p1 + p2, p2
        d1 = -lower * H / (E * A)
        d2 = d1 - upper * H / (E * A)
        c["disp"][node(1, col)][1] = d1
        c["disp"][node(2, col)][1] = d2
        c["react"][node(0, col)][1] = lower
    return c


def lateral(f1, f2, axis, name):
    """Storey forces f1 (level 1) and f2 (roof) in X (axis 0) or Z (axis 2), shared by the six
    nodes of a level. Each storey's shear is shared by the columns in proportion to their
    stiffness, with inflection points at mid-height; the rest of the overturning is taken by
    the axial forces of the outer column lines (portal method)."""
    c = zero_case()
    k = K_X if axis == 0 else K_Z
    for col in range(6):
        if f1:
            c["loads"].append((node(1, col), name, "XYZ"[axis], f1 / 6))
        if f2:
            c["loads"].append((node(2, col), name, "XYZ"[axis], f2 / 6))
    v1, v2 = f1 + f2, f2
    drift1, drift2 = v1 / k, v2 / k
    # Base moments of the columns and the axial forces that take the rest of the overturning.
    m_base = v1 * H_FT / 2  # all six columns together, kip-ft
    m_top = v2 * H_FT / 2
    otm_base = f2 * 2 * H_FT + f1 * H_FT
    otm_level1 = f2 * H_FT
    lever = 80.0 if axis == 0 else 75.0  # sum over the columns of (distance from the centre)^2 / distance
    p_lower = (otm_base - m_base) / lever
    p_upper = (otm_level1 - m_top) / lever
    for col, (x, z) in enumerate(COLUMNS):
        side = (x - 20.0) / 20.0 if axis == 0 else (z - 12.5) / 12.5  # -1 windward, +1 leeward
        c["disp"][node(1, col)][axis] = drift1
        c["disp"][node(2, col)][axis] = drift1 + drift2
        dy1 = -side * p_lower * H / (E * A)
        c["disp"][node(1, col)][1] = dy1
        c["disp"][node(2, col)][1] = dy1 - side * p_upper * H / (E * A)
        r = c["react"][node(0, col)]
        share = 12 * E * column_i(col, axis) / H**3 / k
        r[axis] = -v1 * share
        r[1] = side * p_lower
        if axis == 0:
            r[5] = v1 * share * H_FT / 2
        else:
            r[3] = -v1 * share * H_FT / 2
    return c


def combine(terms):
    c = zero_case()
    for factor, case in terms:
        for table in ("disp", "react"):
            for n, values in case[table].items():
                c[table][n] = [a + factor * b for a, b in zip(c[table][n], values)]
    return c


def modes_2dof(k, m1, m2):
    """Eigenpairs of K = [[2k, -k], [-k, k]], M = diag(m1, m2), lowest first; shapes scaled to
    a largest component of 1."""
    a = m1 * m2
    b = -(2 * k * m2 + k * m1)
    c = k * k
    out = []
    for w2 in sorted([(-b - math.sqrt(b * b - 4 * a * c)) / (2 * a), (-b + math.sqrt(b * b - 4 * a * c)) / (2 * a)]):
        phi = [1.0, (2 * k - w2 * m1) / k]
        big = max(abs(p) for p in phi)
        out.append((w2, [p / big for p in phi]))
    return out


def rnd(v):
    return 0.0 if abs(v) < 1e-12 else float(f"{v:.6g}")


def records(table):
    return [[n] + [rnd(v) for v in values] for n, values in sorted(table.items())]


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    path = os.path.join(here, "building.json")
    with open(path) as f:
        document = f.read()
    nodes = json.loads(document)["nodes"]

    dead = gravity(80, 60, "Dead")
    live = gravity(50, 0, "Live")
    roof_live = gravity(0, 20, "Roof live")
    snow = gravity(0, 25, "Snow")
    wind = lateral(20 * 25 * 12 / 1000, 20 * 25 * 6 / 1000, 0, "Wind X")  # 20 psf on the 25 ft face
    w_dead = 80 + 60
    base_shear = 0.1 * w_dead
    f_roof = base_shear * 60 * 24 / (80 * 12 + 60 * 24)
    quake = lateral(base_shear - f_roof, f_roof, 0, "Earthquake X")
    construction = gravity(20, 0, "Construction")
    cases = [("Dead", "Dead-D", dead), ("Live", "Live-L", live), ("Roof live", "RoofLive-Lr", roof_live),
             ("Snow", "Snow-S", snow), ("Wind X", "Wind-W", wind), ("Earthquake X", "Earthquake-E", quake),
             ("Construction", "Other", construction),
             ("Dead only", "", combine([(1, dead)])),
             ("Service D+L", "", combine([(1, dead), (1, live)])),
             ("Live deflection", "", combine([(1, live)])),
             ("Construction stage", "", combine([(1.2, dead), (1.4, construction)]))]

    # Modes of the dead-load masses: two in each of X and Z, the same pair, as the columns
    # give both directions the same stiffness; X first.
    m1, m2 = 80 / G, 60 / G
    modes = [(w2, phi, 2) for w2, phi in modes_2dof(K_Z, m1, m2)] + [(w2, phi, 0) for w2, phi in modes_2dof(K_X, m1, m2)]
    modes.sort(key=lambda m: (m[0], m[2]))

    def shape(values, axis, level_values):
        t = {n: [0.0] * 6 for n in range(1, 19)}
        for col in range(6):
            for level in (1, 2):
                t[node(level, col)][axis] = level_values[level - 1]
        return t

    # Response spectrum: a flat 0.25 g acting in X and in Z, each mode's response by its
    # participation, combined by the square root of the sum of squares.
    sa = 0.25 * G
    spectrum_modes = []
    combined_disp = {n["id"]: [0.0] * 6 for n in nodes}
    combined_react = {n: [0.0] * 6 for n in range(1, 7)}
    for w2, phi, axis in modes:
        gamma = (m1 * phi[0] + m2 * phi[1]) / (m1 * phi[0] ** 2 + m2 * phi[1] ** 2)
        entry = {"omega2": rnd(w2), "displacements": {}, "inertialForces": {}}
        for direction, name in enumerate("XYZ"):
            excited = direction == axis
            u = [gamma * p * sa / w2 if excited else 0.0 for p in phi]
            f = [m * gamma * p * sa if excited else 0.0 for m, p in zip((m1, m2), phi)]
            entry["displacements"][name] = records(spread(shape(None, axis, u), nodes))
            # The masses sit at the column lines.
            forces = {n["id"]: [0.0] * 6 for n in nodes}
            for col in range(6):
                forces[node(1, col)][axis] = f[0] / 6
                forces[node(2, col)][axis] = f[1] / 6
            entry["inertialForces"][name] = records(forces)
            if excited:
                response = lateral(f[0], f[1], axis, "")
                moved = spread(response["disp"], nodes)
                for n in combined_disp:
                    combined_disp[n] = [a + b * b for a, b in zip(combined_disp[n], moved[n])]
                for n in combined_react:
                    combined_react[n] = [a + b * b for a, b in zip(combined_react[n], response["react"][n])]
        spectrum_modes.append(entry)
    for table in (combined_disp, combined_react):
        for n in table:
            table[n] = [math.sqrt(v) for v in table[n]]

    units = [1, 0, 16, 40, 24, 56, 72, 0, 101, 103, 71, 86, 5, 71, 39, 108, 72, 88]
    loads = []
    for name, _, case in cases[:7]:
        loads += [{"node": n, "case": c, "direction": d, "magnitude": rnd(v)} for n, c, d, v in case["loads"]]
    results = {
        "units": {"unit": units},
        "cases": [dict([("label", name)] + ([("type", t)] if t else []) +
                       [("displacements", records(spread(c["disp"], nodes))), ("reactions", records(c["react"]))])
                  for name, t, c in cases],
        "eigenModes": [{"omega2": rnd(w2), "shape": records(spread(shape(None, axis, phi), nodes))} for w2, phi, axis in modes],
        "spectrumModes": spectrum_modes,
        "spectrum": {"displacements": records(combined_disp), "reactions": records(combined_react)},
        "envelopeCombinations": ["Dead only", "Service D+L", "Live deflection", "Construction stage", "Wind X",
                                 "Earthquake X"],
        "driftNodes": [7, 13],
        "supports": [{"node": n, "flag": "111111", "values": [0, 0, 0, 0, 0, 0]} for n in range(1, 7)],
        "nodalLoads": loads,
    }
    # One record a line, as the rest of the document is written.
    text = json.dumps(results, indent="\t")
    text = re.sub(r"\[\s*(-?[0-9.e+-]+(?:,\s*-?[0-9.e+-]+)*)\s*\]",
                  lambda m: "[" + ", ".join(v.strip() for v in m.group(1).split(",")) + "]", text)
    text = re.sub(r"\{\s*(\"(?:node|unit)\"[^{}\[\]]*(?:\[[^\[\]]*\][^{}\[\]]*)?)\s*\}",
                  lambda m: "{" + re.sub(r"\s*\n\s*", " ", m.group(1)).strip() + "}", text)
    if "--update" in sys.argv:
        # Replaces the document's results section, which comes last.
        start = document.index('\n\t"results": ')
        text = "\n".join(("\t" + line if i else line) for i, line in enumerate(text.split("\n")))
        with open(path, "w") as f:
            f.write(document[:start] + '\n\t"results": ' + text + "\n}\n")
    else:
        print(text)


if __name__ == "__main__":
    main()
