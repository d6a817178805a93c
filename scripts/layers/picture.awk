# SPDX-License-Identifier: BSD-3-Clause
# Reads what list_includes.sh says, and prints the picture.

function folderOf(path) { sub(/\/[^\/]*$/, "", path); return path }

function plural(count, word) { return count " " word (count == 1 ? "" : "s") }

function explain(kind, y, text) {
    legend = legend sprintf("<path class=\"%s\" marker-end=\"url(#%s-head)\" d=\"M%d %dh38\"/>\n",
        kind, kind, legendX, y)
    legend = legend sprintf("<text class=\"legend\" x=\"%d\" y=\"%d\">%s</text>\n",
        legendX + 50, y + 4, text)
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
        printf " markerWidth=\"8\" markerHeight=\"8\" markerUnits=\"userSpaceOnUse\" orient=\"auto\">"
        printf "<path class=\"%s-head\" d=\"M0 0L8 4L0 8z\"/></marker>\n", kinds[i]
    }
    print "</defs>"
    printf "<rect class=\"page\" width=\"%d\" height=\"%d\"/>\n", width, height
    for (pass = 1; pass <= 2; pass++) {
        for (i = 1; i <= targetCount; i++) {
            id = targets[i]
            if (pass == 1)
                printf "<rect class=\"target\" x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" rx=\"8\"/>\n",
                    left[id], top[id], wide[id], high[id]
            else
                printf "<text class=\"title\" x=\"%d\" y=\"%d\">%s</text>\n", left[id] + 14,
                    top[id] + 25, titleOf[id]
        }
        if (pass == 1)
            printf "%s%s", farLines, nearLines
    }
    for (i = 1; i <= roomCount; i++) {
        folder = rooms[i]
        printf "<rect class=\"room\" x=\"%.1f\" y=\"%d\" width=\"%.1f\" height=\"%d\" rx=\"5\"/>\n",
            leftOf(folder), top[folder], wide[folder], high[folder]
        printf "<text class=\"name\" x=\"%.1f\" y=\"%d\">%s</text>\n", centerOf[folder],
            top[folder] + 18, labelOf[folder]
        printf "<text class=\"count\" x=\"%.1f\" y=\"%d\">%s</text>\n", centerOf[folder],
            top[folder] + 34, plural(unitCount[folder], "unit")
    }
    printf "%s", numbers
    printf "%s", legend
    print "</svg>"
}
