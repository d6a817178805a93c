// SPDX-License-Identifier: BSD-3-Clause
#include "SharedFields.h"

#include "CrvStrings.h"
#include "KnField.h"
#include "KnFieldContainer.h"

#include <algorithm>
#include <map>

namespace {

/// For each field of one node, where another node has it; -1 where it doesn't. One answer serves
/// all nodes of a class.
using Places = std::vector<int>;

Places placesIn(KnFieldContainer& other, KnFieldContainer& node)
{
    const KnFieldData& data = *node.getContainerFieldData();
    const KnFieldData& otherData = *other.getContainerFieldData();
    Places places;
    for (int i = 0; i < data.getNum(); ++i) {
        const int place = &otherData == &data ? i : otherData.getIndex(data.getName(i));
        const KnField* const field = otherData.getField(&other, place);
        const bool isSame
            = field && field->getObjectType() == data.getField(&node, i)->getObjectType();
        places.push_back(isSame ? place : -1);
    }
    return places;
}

std::vector<SharedField> fieldsWith(KnFieldContainer& node)
{
    const KnFieldData& data = *node.getContainerFieldData();
    std::vector<SharedField> fields;
    fields.reserve(static_cast<std::size_t>(data.getNum()));
    for (int i = 0; i < data.getNum(); ++i)
        fields.push_back({ toQString(data.getName(i)), { data.getField(&node, i) } });
    return fields;
}

void addFieldsOf(KnFieldContainer& other, const Places& places, std::vector<SharedField>& fields)
{
    const KnFieldData& data = *other.getContainerFieldData();
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i].fields.push_back(data.getField(&other, places[i]));
}

} // namespace

std::vector<SharedField> sharedFields(const std::vector<KnFieldContainer*>& nodes)
{
    if (nodes.empty())
        return {};
    std::vector<SharedField> fields = fieldsWith(*nodes.front());
    std::map<const KnFieldData*, Places> known;
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        Places& places = known[nodes[i]->getContainerFieldData()];
        if (places.empty())
            places = placesIn(*nodes[i], *nodes.front());
        addFieldsOf(*nodes[i], places, fields);
    }
    std::erase_if(fields, [](const SharedField& shared) {
        return std::find(shared.fields.begin(), shared.fields.end(), nullptr)
            != shared.fields.end();
    });
    return fields;
}

std::vector<SharedField> fieldPairs(KnFieldContainer& node, KnFieldContainer& other)
{
    std::vector<SharedField> fields = fieldsWith(node);
    addFieldsOf(other, placesIn(other, node), fields);
    return fields;
}
