// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <functional>

class KnField;
class QMenu;

/// Adds the entries by which a person watches a field: "Watch" for a single number, else a submenu
/// of that name with all components and each one. A field without numbers gets an entry that is
/// disabled. `watch` is called while the field is alive, which the entries see to.
void addWatchEntries(
    QMenu& menu, KnField& field, const std::function<void(KnField& field, int component)>& watch);
