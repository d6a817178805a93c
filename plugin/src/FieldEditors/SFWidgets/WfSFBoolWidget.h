// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

class QCheckBox;

/// Edits a KnSFBool with one check box; a click applies at once.
class WfSFBoolWidget : public WfSFieldWidget {
    Q_OBJECT
public:
    explicit WfSFBoolWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

private:
    QCheckBox* m_box = nullptr;
};
