# SPDX-License-Identifier: BSD-3-Clause
# Reads what list_includes.sh says, and prints the picture.

function folderOf(path) { sub(/\/[^\/]*$/, "", path); return path }

function plural(count, word) { return count " " word (count == 1 ? "" : "s") }

function rectangle(class, x, y, width, height, radius) {
    return sprintf("<rect class=\"%s\" x=\"%.1f\" y=\"%.1f\" width=\"%.1f\" height=\"%.1f\"",
        class, x, y, width, height) (radius ? " rx=\"" radius "\"/>\n" : "/>\n")
}

function label(class, x, y, text) {
    return sprintf("<text class=\"%s\" x=\"%.1f\" y=\"%.1f\">%s</text>\n", class, x, y, text)
}

# A line of the legend, with an arrow of that kind if there is one.
function explain(kind, y, text) {
    if (kind != "")
        legend = legend sprintf("<path class=\"%s\" marker-end=\"url(#%s-head)\"", kind, kind) \
            sprintf(" d=\"M%d %dh38\"/>\n", legendX, y)
    legend = legend label("legend", legendX + (kind == "" ? 0 : 50), y + 4, text)
}

$1 == "file" {
    folder = folderOf($2)
    if (!(folder in targetOf)) {
        print "draw_layers.sh: " folder " has no place in the picture" >"/dev/stderr"
        failed = 1
    }
    unit = $2
    sub(/\.[a-z]+$/, "", unit)
    if (!(unit in units)) {
        units[unit] = 1
        unitCount[folder]++
    }
}

$1 == "include" && $5 != "-" {
    from = folderOf($2)
    to = folderOf($5)
    if (targetOf[from] != targetOf[to]) {
        from = targetOf[from]
        to = targetOf[to]
    }
    if (from != to)
        uses[from, to]++
}

END {
    if (failed)
        exit 1
    # In the order of the tables above, since that of an array is any.
    for (i = 1; i <= roomCount; i++)
        for (j = 1; j <= roomCount; j++)
            if ((rooms[i], rooms[j]) in uses)
                addPorts(rooms[i], rooms[j])
    for (i = 1; i <= roomCount; i++)
        for (j = 1; j <= roomCount; j++)
            if ((rooms[i], rooms[j]) in uses)
                drawRoomArrow(rooms[i], rooms[j], uses[rooms[i], rooms[j]])
    for (i = 1; i <= targetCount; i++)
        for (j = 1; j <= targetCount; j++)
            if ((targets[i], targets[j]) in uses)
                drawTargetArrow(targets[i], targets[j], uses[targets[i], targets[j]])
    if (failed)
        exit 1

    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %d %d\"", width, height
    print " font-family=\"sans-serif\" text-anchor=\"middle\">"
    print "<!-- Drawn by scripts/draw_layers.sh; SPDX-License-Identifier: BSD-3-Clause -->"
    print "<style>"
    getline line <style # its licence
    while ((getline line <style) > 0)
        print line
    print "</style>"
    print "<defs>"
    split("near far up", kinds, " ")
    for (i = 1; i <= 3; i++) {
        printf "<marker id=\"%s-head\" viewBox=\"0 0 8 8\" refX=\"7\" refY=\"4\"", kinds[i]
        printf " markerWidth=\"8\" markerHeight=\"8\" markerUnits=\"userSpaceOnUse\""
        printf " orient=\"auto\"><path class=\"%s-head\" d=\"M0 0L8 4L0 8z\"/></marker>\n", kinds[i]
    }
    print "</defs>"
    printf "%s", rectangle("page", 0, 0, width, height, 0)
    # The lines pass behind the boxes and behind what is written.
    for (i = 1; i <= targetCount; i++) {
        id = targets[i]
        printf "%s", rectangle("target", left[id], top[id], wide[id], high[id], 8)
    }
    printf "%s%s", farLines, nearLines
    for (i = 1; i <= targetCount; i++) {
        id = targets[i]
        printf "%s", label("title", left[id] + 14, top[id] + 25, titleOf[id])
    }
    for (i = 1; i <= roomCount; i++) {
        folder = rooms[i]
        printf "%s", rectangle("room", leftOf(folder), top[folder], wide[folder], high[folder], 5)
        printf "%s", label("name", centerOf[folder], top[folder] + 18, labelOf[folder])
        printf "%s", label("count", centerOf[folder], top[folder] + 34,
            plural(unitCount[folder], "unit"))
    }
    printf "%s%s", numbers, legend
    print "</svg>"
}
