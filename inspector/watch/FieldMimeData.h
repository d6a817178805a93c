// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnField.h"
#include "KnNodePtr.h"

#include <QMimeData>

/// A field that is being dragged within the program. It holds a reference on the field's node.
class FieldMimeData : public QMimeData {
    Q_OBJECT
public:
    explicit FieldMimeData(KnField& field)
        : m_node(field.getContainer())
        , m_field(field)
    {
    }

    /// Null if something else is dragged.
    static KnField* fieldOf(const QMimeData* data)
    {
        const auto* const own = qobject_cast<const FieldMimeData*>(data);
        return own ? &own->m_field : nullptr;
    }

private:
    const KnNodePtr m_node;
    KnField& m_field;
};
