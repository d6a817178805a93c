// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

class QComboBox;

/// Edits a KnSFEnum with a list of the field's own names.
class WfSFEnumWidget : public WfSFieldWidget {
    Q_OBJECT
public:
    explicit WfSFEnumWidget(const char* name = nullptr);

    void load() override;
    /// Fills the list with the names of the field.
    void attachField(KnField* field) override;
    /// A value without a name is shown in place of the current entry.
    void updateFromField() override;
    void applyChanges() override;

private:
    QComboBox* m_comboBox = nullptr;
};
