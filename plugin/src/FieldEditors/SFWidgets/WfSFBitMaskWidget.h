// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

#include <QList>

#include <memory>

class QCheckBox;
class QVBoxLayout;

/// Edits a KnSFBitMask with a check box for each of the field's names; a click writes the field at
/// once, without a command.
class WfSFBitMaskWidget : public WfSFieldWidget {
    Q_OBJECT
public:
    explicit WfSFBitMaskWidget(const char* name = nullptr);
    ~WfSFBitMaskWidget() override;

    void load() override;
    void unload() override;
    /// Replaces the check boxes by those of the field, checked as its mask is now.
    void attachField(KnField* field) override;
    /// Leaves the check boxes as they are.
    void updateFromField() override;
    void applyChanges() override;

protected Q_SLOTS:
    /// Writes the mask that the check boxes show; a bit without a box is cleared.
    virtual void setBitMaskValue();

private:
    void buildCheckBoxes();
    void clearCheckBoxes();

    QList<QCheckBox*> m_checkBoxes; // owned, from attachment to attachment
    // Part of the edition frame's layout only while there are boxes; taken out before that is
    // deleted.
    std::unique_ptr<QVBoxLayout> m_checkBoxLayout;
};
