// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class KnField;

/// Whether two fields of one type hold the same. Arrays of different lengths are told apart at
/// once, and others at the first difference, without their texts.
bool holdSame(const KnField& a, const KnField& b);
