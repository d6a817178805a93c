# SPDX-License-Identifier: BSD-3-Clause
# The arrows of the picture, and where they meet the boxes.

function bottomOf(box) { return top[box] + high[box] }

function leftOf(box) { return centerOf[box] - wide[box] / 2 }

function rightOf(box) { return centerOf[box] + wide[box] / 2 }

function atLeast(value, limit) { return value < limit ? limit : value }

# Arrows meet a box side by side, in the order in which their other ends stand; of two between the
# same boxes the one that goes down is the left one.
function addPort(box, edge, other, up,    side) {
    side = rowOf[other] < rowOf[box] ? "top" : "bottom"
    portOrder[box, side, ++portCount[box, side]] = centerOf[other] + up / 2
    portNumber[box, edge] = portCount[box, side]
    wide[box] = atLeast(wide[box], 19 * (portCount[box, side] + 1))
}

function portOf(box, edge, other,    side, own, i, rank) {
    side = rowOf[other] < rowOf[box] ? "top" : "bottom"
    own = portOrder[box, side, portNumber[box, edge]]
    rank = 1
    for (i = 1; i <= portCount[box, side]; i++)
        rank += portOrder[box, side, i] < own ||
            (portOrder[box, side, i] == own && i < portNumber[box, edge])
    return leftOf(box) + wide[box] * rank / (portCount[box, side] + 1)
}

function addPorts(from, to,    up) {
    if (rowOf[from] == rowOf[to] || isBlocked(from, to))
        return
    up = rowOf[from] > rowOf[to]
    addPort(from, from SUBSEP to, to, up)
    addPort(to, from SUBSEP to, from, up)
}

# Whether a room stands right between two that stand one below the other.
function isBlocked(from, to,    i, other) {
    for (i = 1; i <= roomCount; i++) {
        other = rooms[i]
        if (centerOf[from] == centerOf[to] && centerOf[other] == centerOf[from] &&
            targetOf[other] == targetOf[from] &&
            rowOf[other] > rowOf[from] && rowOf[other] < rowOf[to])
            return 1
    }
    return 0
}

function describe(from, to, count) {
    return "<title>" from " includes " to " " (count == 1 ? "once" : count " times") "</title>"
}

# On a piece of ground of its own, since it may stand on a line.
function number(x, y, count, kind,    width, ground) {
    width = 7 * length(count) + 3
    ground = kind ~ /^target-/ ? "page" : "ground"
    sub(/^target-/, "", kind)
    numbers = numbers rectangle(ground, x - width / 2, y - 6, width, 12, 0) \
        label(kind "-number", x, y + 4, count)
}

function arrow(kind, path, from, to, count) {
    line = sprintf("<path class=\"%s\" marker-end=\"url(#%s-head)\" d=\"%s\">%s</path>\n",
        kind, kind, path, describe(from, to, count))
    if (kind == "near")
        nearLines = nearLines line
    else
        farLines = farLines line
}

# An arrow between two rooms of one target.
function drawRoomArrow(from, to, count,    x1, y1, x2, y2, x3, side, edge) {
    if (rowOf[from] == rowOf[to]) {
        side = centerOf[from] < centerOf[to] ? 1 : -1
        x1 = side > 0 ? rightOf(from) : leftOf(from)
        x2 = side > 0 ? leftOf(to) - gap : rightOf(to) + gap
        y1 = top[from] + boxHeight / 2
        arrow("far", sprintf("M%.1f %.1fH%.1f", x1, y1, x2), from, to, count)
        number((x1 + x2) / 2, y1, count, "far")
        return
    }
    if (isBlocked(from, to)) {
        # Around what stands between them, on the left or the right in turn.
        side = detours[targetOf[from]]++ % 2 ? 1 : -1
        x1 = side > 0 ? rightOf(from) : leftOf(from)
        x2 = side > 0 ? rightOf(to) + gap : leftOf(to) - gap
        y1 = top[from] + boxHeight / 2 + 6
        y2 = top[to] + boxHeight / 2 - 6
        x3 = centerOf[from] + side * atLeast(wide[from], wide[to]) / 2
        x3 += side * 18 * (rowOf[to] - rowOf[from])
        arrow("far", sprintf("M%.1f %.1fC%.1f %.1f %.1f %.1f %.1f %.1f", x1, y1, x3, y1, x3, y2,
            x2, y2), from, to, count)
        number(0.34 * x1 + 0.63 * x3 + 0.03 * x2, 0.78 * y1 + 0.22 * y2, count, "far")
        return
    }
    edge = from SUBSEP to
    x1 = portOf(from, edge, to)
    x2 = portOf(to, edge, from)
    if (rowOf[from] > rowOf[to]) {
        y1 = top[from]
        y2 = bottomOf(to) + gap
        arrow("up", sprintf("M%.1f %.1fL%.1f %.1f", x1, y1, x2, y2), from, to, count)
        number(x2 + (x1 - x2) * 14 / (y1 - y2), y2 + 14, count, "up")
        return
    }
    y1 = bottomOf(from)
    y2 = top[to] - gap
    if (rowOf[to] == rowOf[from] + 1) {
        arrow("near", sprintf("M%.1f %.1fL%.1f %.1f", x1, y1, x2, y2), from, to, count)
        number(x2 + (x1 - x2) * 15 / (y2 - y1), y2 - 15, count, "near")
        return
    }
    arrow("far", sprintf("M%.1f %.1fC%.1f %.1f %.1f %.1f %.1f %.1f", x1, y1, x1, y1 + 60, x2,
        y2 - 70, x2, y2), from, to, count)
    number(x2, y2 - 15, count, "far")
}

# An arrow between two targets: to the left, or straight down behind what stands between them.
function drawTargetArrow(from, to, count,    kind, x, y) {
    if (top[from] == top[to]) {
        y = top[from] + high[from] / 2
        x = left[to] + wide[to] + gap
        arrow("near", sprintf("M%.1f %.1fH%.1f", left[from], y, x), titleOf[from], titleOf[to],
            count)
        number((left[from] + x) / 2 + 20, y, count, "target-near")
        return
    }
    if (!((from, to) in laneOf)) {
        print "draw_layers.sh: no lane from " from " to " to >"/dev/stderr"
        failed = 1
        return
    }
    x = laneOf[from, to]
    kind = bottomOf(from) + between >= top[to] ? "near" : "far"
    arrow(kind, sprintf("M%.1f %.1fV%.1f", x, bottomOf(from), top[to] - gap), titleOf[from],
        titleOf[to], count)
    number(x, bottomOf(from) + between / 2 - 5, count, "target-" kind)
}
