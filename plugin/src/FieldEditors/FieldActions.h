// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnField;

// What the default button and the ignore button do, the same for every field type.

/// Resets the field to what a fresh node of its container's type holds, with a command for the
/// host. A field without a container has no such default and keeps its value.
void setFieldToDefault(KnField* field);

/// Sets or clears the ignore flag, with a command for the host.
void setFieldIgnored(KnField* field, bool ignored);
