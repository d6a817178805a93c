// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class CrvFieldEditors;
class KnField;

// What the default button and the ignore button do, the same for every field type. Neither touches
// a field that the editor doesn't show.

/// Resets the field to what a fresh node of its container's type holds, with a command for the
/// host. A field without a container has no such default and keeps its value.
void setFieldToDefault(const CrvFieldEditors& editor, KnField* field);

/// Sets or clears the ignore flag, with a command for the host. A flag that is so already is left
/// alone: the button was let go beside itself, and undoing that would turn the flag over.
void setFieldIgnored(const CrvFieldEditors& editor, KnField* field, bool ignored);
