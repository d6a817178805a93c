// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnMFields.h"
#include "PropertyFields.h"
#include "TextForm.h"

/// A list of values that are text, or that the kernel has no arrays for: an array of strings, with
/// a text of the items' form in each row. It is of any type that Qt can iterate over.
class TextListPropertyField final : public PropertyFieldOf<KnMFString> {
public:
    /// For values of `type`, which `isTextList` is true for.
    TextListPropertyField(const PropertyPlace& place, QMetaType type);

    /// Of the name that the items' form gives it, below MFString, so that its editor serves.
    KnType getObjectType() const override;
    using PropertyFieldOf::set;
    bool set(const KbString& text) override;
    using KnMField::set1;
    bool set1(int row, const KbString& text) override;

protected:
    QMetaType type() const override { return m_type; }
    bool shows(const QVariant& value) const override;
    void show(const QVariant& value) override;
    QVariant valueFor(const QVariant& before) override;

private:
    QString text(const QVariant& item) const { return m_form.write(item); }
    QVariant freshItem() const;
    bool isRow(const QVariant& item, int row) const;
    /// None, after a KnReadError, for a bad text.
    std::optional<QVariant> itemOf(int row, const QVariant& before) const;

    const QMetaType m_type;
    const QMetaType m_itemType;
    const TextForm& m_form; // of the items
    FormerValues<QVariant> m_former; // items
    bool m_isRefused = false; // a row of the last edit has a bad text
};

/// Whether the type is a list whose items have texts.
bool isTextList(QMetaType type);
