// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class CrvFieldEditors;
class KnField;

// What the default button and the ignore button do, the same for every field type. Neither touches
// a field that the editor doesn't show, or that is read-only.

/// Whether setFieldToDefault() may do something: not where there can be no fresh node and the field
/// has no default of its own.
bool hasDefault(const KnField& field);
/// Resets the field to its own default, or else to what a fresh node of its container's type holds,
/// with a command for the host. A field without a container has no such default and keeps its
/// value.
void setFieldToDefault(const CrvFieldEditors& editor, KnField* field);

/// Sets or clears the ignore flag, with a command for the host. If the flag is already in that
/// state, nothing happens: the mouse was released outside the button, and undoing that would flip
/// the flag.
void setFieldIgnored(const CrvFieldEditors& editor, KnField* field, bool ignored);
