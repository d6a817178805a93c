// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CrvFieldEditors.h"

#include <QPixmap>

class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpacerItem;

/// Base of all editors of single-value fields: a row of title label, edition frame, default button
/// and ignore button. A subclass puts its input widgets into the edition frame in `load`, fills
/// `updateFromField` and `applyChanges`, and connects its inputs to setCommandValue (applies at
/// once) or setFocusLeaveEvent (applies what was edited).
class WfSFieldWidget : public CrvFieldEditors {
    Q_OBJECT
public:
    /// The number type of the slider that a numeric editor consists of.
    enum SliderKind : int {
        FloatSlider = 1,
        DoubleSlider = 2,
        Int32Slider = 3,
        UInt32Slider = 4,
        Int16Slider = 5,
        UInt16Slider = 6,
    };

    /// For editors whose inputs stand in a plain frame.
    explicit WfSFieldWidget(const char* name);
    /// For the numeric editors, whose edition frame is the slider of a SliderKind. Any other number
    /// makes none.
    WfSFieldWidget(int sliderKind, const char* name);

    void load() override;
    void attachField(KnField* field) override;
    /// Refreshes the ignore button; a subclass does its own part and calls this one.
    void updateFromField() override;
    void setFieldUpdateEnabled(bool enabled) override;
    void swapFieldValues(int row1, int row2) override;
    void setFieldValue(int row, int column, QString text) override;
    void setFieldColor(int row, const void* color) override;

    /// Whether a line edit holds text that hasn't been applied yet.
    virtual bool edited();

    /// Sets the title, once: a label that has text keeps it. A subclass calls it before `load` of
    /// this class.
    void setLabel(const QString& text);

protected Q_SLOTS:
    virtual void languageChange();
    /// Applies what the inputs show.
    virtual void setCommandValue();
    /// Applies what the inputs show if it was edited.
    void setFocusLeaveEvent();
    void ignoreButtonStateChanged();
    virtual void setDefaultFieldValue();
    void applyChanges() override;

protected:
    /// Lets the space on both sides of the edition frame grow, so that the inputs stay small.
    void spreadRow();

    QLabel* m_label = nullptr;
    QPushButton* m_defaultButton = nullptr;
    QPushButton* m_ignoreButton = nullptr;
    KnField* m_field = nullptr; // not owned; keeps the last field after a deactivation
    QFrame* m_editionFrame = nullptr; // holds the inputs, or is the slider
    QHBoxLayout* m_fieldLayout = nullptr;
    QHBoxLayout* m_buttonLayout = nullptr;
    QBoxLayout* m_editLayout = nullptr; // the layout inside the edition frame
    QHBoxLayout* m_editionAreaLayout = nullptr;
    QSpacerItem* m_labelSpacer = nullptr; // between label and edition area
    QSpacerItem* m_editionSpacer = nullptr; // between edition frame and buttons

private:
    QPixmap m_defaultPixmap;
    QPixmap m_ignorePixmap;
};
