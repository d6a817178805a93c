#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Writes station.json: a space station of a few hundred nodes, with one array of 10,000 points.

Usage: make_station.py > station.json
The same file comes out each time.
"""

import json
import math


def number(value):
    """The shortest of at most four decimals."""
    text = f"{value:.4f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def vector(*components):
    return " ".join(number(component) for component in components)


def array(values):
    return "[ " + ", ".join(values) + " ]"


def node(node_type, name, children=None, **fields):
    result = {"type": node_type, "name": name}
    if fields:
        result["fields"] = fields
    if children:
        result["children"] = children
    return result


def material(name, color, shininess=0.2, **fields):
    return node("Material", name, diffuseColor=array([vector(*color)]),
                shininess=array([number(shininess)]), **fields)


def ring_of_faces(count):
    """Quads around a tube of two rows of `count` points."""
    faces = []
    for i in range(count):
        j = (i + 1) % count
        faces += [i, j, count + j, count + i, -1]
    return array(str(face) for face in faces)


def tube(name, radius, length, count=12):
    points = [vector(radius * math.cos(2 * math.pi * i / count),
                     radius * math.sin(2 * math.pi * i / count), z)
              for z in (0, length) for i in range(count)]
    normals = [vector(math.cos(2 * math.pi * i / count), math.sin(2 * math.pi * i / count), 0)
               for i in range(count)]
    return node("Group", name, [
        node("Coordinates", f"{name} points", point=array(points)),
        node("Normals", f"{name} normals", vector=array(normals)),
        node("IndexedFaceSet", f"{name} faces", coordIndex=ring_of_faces(count)),
    ])


def solar_wing(name, angle):
    cells = [node("Group", f"{name} cell {i + 1}", [
        node("Transform", f"{name} cell {i + 1} place", translation=vector(0, 2.2 * i + 2, 0)),
        material(f"{name} cell {i + 1} glass", (0.08, 0.1, 0.3 + 0.02 * i), 0.9),
    ]) for i in range(6)]
    return node("Group", name, [
        node("Transform", f"{name} place", rotation=vector(0, 0, 1, angle)),
        node("Animation", f"{name} follows the sun", loop="TRUE", duration="5400",
             keyFraction="[ 0, 0.25, 0.5, 0.75, 1 ]",
             keyRotation=array(vector(0, 1, 0, i * math.pi / 2) for i in range(5))),
        tube(f"{name} mast", 0.15, 14),
        node("Group", f"{name} cells", cells),
    ])


def module(number_of_module, count):
    name = f"Module {number_of_module + 1}"
    angle = 2 * math.pi * number_of_module / count
    use = ["Laboratory", "Quarters", "Storage", "Greenhouse"][number_of_module % 4]
    return node("Group", name, [
        node("Transform", f"{name} place",
             translation=vector(24 * math.cos(angle), 24 * math.sin(angle), 0),
             rotation=vector(0, 0, 1, angle)),
        material(f"{name} hull paint", (0.75, 0.76, 0.78 + 0.01 * number_of_module)),
        node("DrawStyle", f"{name} style", lineWidth="1.5", parts="(SIDES | TOP)"),
        tube(f"{name} hull", 3, 9, 16),
        node("Group", f"{name} windows", [
            node("Group", f"{name} window {i + 1}", [
                node("Transform", f"{name} window {i + 1} place",
                     translation=vector(3, 0, 1.5 + 2 * i)),
                node("PointLight", f"{name} window {i + 1} light", intensity="0.4",
                     color=vector(1, 0.9 - 0.05 * i, 0.7)),
            ]) for i in range(4)
        ]),
        node("Text", f"{name} label", string=array([f'"{name}"', f'"{use}"']), size="9",
             justification="CENTER"),
        node("ClipPlane", f"{name} section", on="FALSE",
             plane=vector(math.cos(angle), math.sin(angle), 0, 24)),
    ])


def shield():
    """100 by 100 points of a dome, with a ripple."""
    points = []
    for row in range(100):
        for column in range(100):
            x, y = (column - 49.5) / 2, (row - 49.5) / 2
            distance = math.hypot(x, y)
            points.append(vector(x, y, 6 - distance * distance / 100
                                 + 0.15 * math.sin(1.7 * distance)))
    return node("Group", "Shield", [
        material("Shield foil", (0.82, 0.66, 0.24), 0.8, transparency="0.15"),
        node("Complexity", "Shield detail", value="0.8", textureQuality="0.3"),
        node("Coordinates", "Shield points", point=array(points)),
    ])


def station():
    modules = 12
    return node("Group", "Station", [
        node("Viewpoint", "Approach", description='"From the shuttle"',
             position="0 -60 25", orientation="1 0 0 1.1", farDistance="5000"),
        node("Viewpoint", "Inside the hub", description='"Weightless"', position="0 0 1"),
        node("DirectionalLight", "Sun", direction="-1 0.2 -0.3", color="1 0.98 0.94"),
        node("DirectionalLight", "Light from the planet", direction="0 0 1", intensity="0.25",
             color="0.55 0.7 1"),
        node("Group", "Hub", [
            material("Hub paint", (0.9, 0.9, 0.88)),
            tube("Hub hull", 5, 18, 24),
            node("Group", "Docking ports", [
                node("Group", f"Port {side}", [
                    node("Transform", f"Port {side} place", translation=vector(0, 0, z)),
                    tube(f"Port {side} collar", 1.2, 1.5),
                    node("PointLight", f"Port {side} beacon", intensity="1", color=color),
                ]) for side, z, color in (("fore", 18, "0.2 1 0.3"), ("aft", 0, "1 0.2 0.2"))
            ]),
        ]),
        node("Group", "Ring", [module(i, modules) for i in range(modules)]),
        node("Group", "Spokes", [
            node("Group", f"Spoke {i + 1}", [
                node("Transform", f"Spoke {i + 1} place",
                     rotation=vector(0, 0, 1, 2 * math.pi * i / 4)),
                tube(f"Spoke {i + 1} truss", 0.8, 20),
            ]) for i in range(4)
        ]),
        node("Group", "Solar wings", [
            solar_wing(f"Wing {i + 1}", 2 * math.pi * i / 4) for i in range(4)
        ]),
        shield(),
    ])


if __name__ == "__main__":
    print(json.dumps({"format": "corvane-scene", "version": 1, "root": station()}, indent=1))
