// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <vector>

class KnField;
class KnFieldContainer;

/// A field that several nodes have by the same name and type.
struct SharedField {
    QString name;
    std::vector<KnField*> fields; // in the order of the nodes
};

/// The fields that all of the nodes have, in the order of the first one.
std::vector<SharedField> sharedFields(const std::vector<KnFieldContainer*>& nodes);
/// All fields of the first node, each with that of the other one, which is null if it has none.
std::vector<SharedField> fieldPairs(KnFieldContainer& node, KnFieldContainer& other);
