// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFStringWidget.h"

struct SFFilePathStringTraits : StringFieldAccess {
    static constexpr const char* typeName = "SFFilePathString";
    static constexpr const char* className = "WfSFFilePathStringWidget";
    static KnType fieldType() { return KnSFFilePathString::getClassTypeId(); }
};

/// Edits a KnSFFilePathString in one line, beside a button that opens the system's file dialog. A
/// file may be dropped on either.
class WfSFFilePathStringWidget : public WfSFTextWidget<SFFilePathStringTraits> {
    Q_OBJECT
public:
    using WfSFTextWidget::WfSFTextWidget;

    void load() override;

protected Q_SLOTS:
    /// Lets the person choose a file, whose path is applied at once.
    void openFileDialog();
    // Repeated because a template can't make it a slot.
    bool edited() override { return WfSFTextWidget::edited(); }

private:
    void takePath(const QString& path);

    QPushButton* m_openFileButton = nullptr;
};
