# SPDX-License-Identifier: BSD-3-Clause
# Where things stand in the picture. That is chosen by hand: a target is a frame, and a room, which
# is a folder, a box inside it. draw_layers.sh refuses a folder that has no place.

function target(id, x, y, width, height, title) {
    targets[++targetCount] = id
    left[id] = x
    top[id] = y
    wide[id] = width
    high[id] = height
    titleOf[id] = title
}

# room FOLDER TARGET CENTER ROW LABEL: the centre counts from the target, rows count from 0.
function room(folder, id, center, row, text) {
    rooms[++roomCount] = folder
    targetOf[folder] = id
    rowOf[folder] = row
    labelOf[folder] = text
    centerOf[folder] = left[id] + center
    wide[folder] = atLeast(length(text) * 7.6 + 26, 92)
    high[folder] = boxHeight
    top[folder] = top[id] + titleHeight + row * pitch
}

# lane FROM TO X: where the arrow from one target to another goes straight down.
function lane(from, to, x) { laneOf[from, to] = x }

BEGIN {
    boxHeight = 42
    titleHeight = 40
    pitch = 92 # from row to row
    gap = 3 # before an arrow's head
    between = 46 # targets
    upper = 6 * pitch + 10
    target("program", 20, 20, 210, upper, "corvane_inspector")
    room("inspector", "program", 105, 0, "inspector/")
    room("inspector/window", "program", 105, 1, "window/")
    room("inspector/script", "program", 55, 2, "script/")
    room("inspector/structure", "program", 155, 2, "structure/")
    room("inspector/scene", "program", 55, 3, "scene/")
    room("inspector/watch", "program", 155, 3, "watch/")
    room("inspector/edits", "program", 55, 4, "edits/")
    room("inspector/process", "program", 155, 4, "process/")
    room("inspector/text", "program", 105, 5, "text/")

    # The third row stays free for the arrow of the examples.
    target("objects", 245, 20, 150, upper, "corvane_objects")
    room("runner", "objects", 75, 0, "runner/")
    room("bridge", "objects", 75, 1, "bridge/")
    room("bridge/properties", "objects", 75, 3, "properties/")
    room("bridge/values", "objects", 75, 4, "values/")

    target("example", 410, 20, 150, upper, "examples")
    room("examples", "example", 75, 0, "examples/")
    room("examples/loop", "example", 75, 1, "loop/")
    room("examples/viewer", "example", 75, 2, "viewer/")
    room("examples/view", "example", 75, 3, "view/")
    room("examples/torus", "example", 75, 4, "torus/")

    target("defaults", 575, 20, 750, upper, "ubn_corvane_extender_base")
    room("plugin", "defaults", 380, 0, "plugin/")
    room("plugin/Console", "defaults", 75, 1, "Console/")
    room("plugin/ProfileSelector", "defaults", 215, 1, "ProfileSelector/")
    room("plugin/src/FieldEditors/MFWidgets", "defaults", 430, 1, "MFWidgets/")
    room("plugin/src/FieldEditors/SFWidgets", "defaults", 640, 1, "SFWidgets/")
    room("plugin/src/FieldEditors/MFTables", "defaults", 430, 2, "MFTables/")
    room("plugin/src/FieldEditors/Sliders", "defaults", 640, 2, "Sliders/")
    room("plugin/src/FieldEditors", "defaults", 310, 3, "FieldEditors/")
    room("plugin/src/Docks", "defaults", 90, 4, "Docks/")
    room("plugin/src/FieldEditors/Edits", "defaults", 270, 4, "Edits/")
    room("plugin/src/FieldEditors/Parts", "defaults", 450, 4, "Parts/")
    room("plugin/src/FieldEditors/Values", "defaults", 650, 4, "Values/")

    y = 20 + upper + between
    single = titleHeight + boxHeight + 14
    target("host", 110, y, 725, single, "ubn_corvane_extender")
    room("platform/extender", "host", 362, 0, "platform/extender/")

    y += single + between
    middle = 3 * pitch + titleHeight + boxHeight + 14
    target("kernel", 20, y, 965, middle, "ubn_kestrix")
    room("platform/kestrix/nodes", "kernel", 482, 0, "nodes/")
    room("platform/kestrix/fields", "kernel", 482, 1, "fields/")
    room("platform/kestrix/errors", "kernel", 307, 2, "errors/")
    room("platform/kestrix/text", "kernel", 642, 2, "text/")
    room("platform/kestrix", "kernel", 482, 3, "platform/kestrix/")

    target("gl", 1095, y, 230, single, "ubn_kestrix_gl")
    room("platform/kestrix_gl", "gl", 115, 0, "platform/kestrix_gl/")

    y += middle + between
    target("base", 20, y, 1305, single, "ubn_kestrix_base")
    room("platform/kestrix_base", "base", 482, 0, "platform/kestrix_base/")

    # With lanes for what may come: what a target may use is settled by check_includes.sh.
    lane("program", "host", 170)
    lane("program", "kernel", 65)
    lane("program", "base", 45)
    lane("objects", "host", 285)
    lane("objects", "kernel", 345)
    lane("objects", "base", 265)
    lane("example", "host", 455)
    lane("example", "kernel", 525)
    lane("defaults", "host", 695)
    lane("defaults", "kernel", 915)
    lane("defaults", "base", 1040)
    lane("defaults", "gl", 1210)
    lane("host", "kernel", 585)
    lane("host", "base", 815)
    lane("gl", "base", 1210)
    lane("kernel", "base", 585)

    legendX = 1095
    y2 = bottomOf("gl") + 42
    explain("", y2, "Includes, and how many there are;")
    explain("", y2 + 18, "those between targets together:")
    explain("near", y2 + 46, "to the row below")
    explain("far", y2 + 70, "sideways or further down")
    explain("up", y2 + 94, "up again, within the plug-in")
    width = 1345
    height = y + single + 20
}
