// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"
#include "KnSField.h"
#include "PropertyField.h"
#include "TextForm.h"

/// A property that is shown, and edited where its form can be read back, as one line of text. Each
/// form has a type of field of its own, derived from SField, which the editors of no other type
/// take.
class TextPropertyField final : public KnSField, public PropertyField {
public:
    /// `form` outlives the field.
    TextPropertyField(const PropertyPlace& place, const TextForm& form);

    KnType getObjectType() const override;
    using KnField::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;
    /// The object that the property points to; null if it doesn't point to any.
    QObject* linkedObject() const;

protected:
    void written() override { fieldWritten(); }
    void watchBegins() override { fieldWatchBegins(); }
    void watchEnds() override { fieldWatchEnds(); }

    bool shows(const QVariant& value) const override;
    void show(const QVariant& value) override;
    QVariant shownValue() const override { return m_wanted; }

private:
    const TextForm& m_form;
    QString m_text;
    QVariant m_wanted; // what was written last
};
