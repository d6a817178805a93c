// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KbString.h"
#include "KnSField.h"
#include "PropertyFields.h"
#include "TextForm.h"

/// A property that is shown, and edited where its text can be read back, as one line of text. Each
/// form has a type of field of its own, derived from SField, which the editors of no other type
/// take.
class TextPropertyField final : public KnSField, public PropertyField {
public:
    /// Whether a value of a type that has another field as well needs this one.
    using NeedsText = bool (*)(const QVariant& value);

    /// For values of `type`. `form` outlives the field. `needsText` is null if the type has no
    /// other field.
    TextPropertyField(const PropertyPlace& place, QMetaType type, const TextForm& form,
        NeedsText needsText = nullptr);

    KnType getObjectType() const override;
    using KnField::set;
    void get(KbString& text) const override;
    bool set(const KbString& text) override;
    bool hasOwnDefault() const override { return place().isResettable(); }
    bool resetToDefault() override
    {
        aboutToWrite();
        return resetProperty();
    }
    /// The object that the property points to; null if it doesn't point to any.
    QObject* linkedObject() const;

protected:
    void written() override { fieldWritten(); }
    void watchBegins() override { fieldWatchBegins(); }
    void watchEnds() override { fieldWatchEnds(); }

    QMetaType type() const override { return m_type; }
    bool isFor(const QVariant& value) const override;
    bool shows(const QVariant& value) const override;
    void show(const QVariant& value) override;
    QVariant valueFor(const QVariant& before) override;

private:
    bool looksLike(const QVariant& value, const QString& text) const;

    const QMetaType m_type;
    const TextForm& m_form;
    const NeedsText m_needsText;
    QString m_text;
    std::optional<QVariant> m_wanted; // what was written last
    FormerValues<QVariant> m_former;
};
