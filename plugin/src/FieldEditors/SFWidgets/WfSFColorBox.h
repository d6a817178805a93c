// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

#include <QColorDialog>

#include <vector>

class QLineEdit;

/// What distinguishes the kinds of colour box.
struct ColorBoxStyle {
    const char* channels; ///< a letter for each channel, in order
    const char* interSpacingMetric; ///< between a channel's label and its line
    const char* layoutName;
    const char* labelName;
    const char* lineName;
    QColorDialog::ColorDialogOption dialogOption; ///< 0 for none
};

/// Base of the colour editors: a button that displays the colour and opens the colour dialog, and a
/// labelled line for each channel. Typing changes only the channels that the widget keeps and the
/// display; the field is written when a line is finished or the dialog accepted.
class WfSFColorBox : public WfSFieldWidget {
    Q_OBJECT
public:
    void load() override;
    /// Whether any line was edited.
    bool edited() override;

protected:
    /// `style` is kept by reference.
    WfSFColorBox(const ColorBoxStyle& style, const char* name);

    /// Takes the text of a line as the channel and displays the colour.
    void changeChannel(std::size_t channel, const QString& text);
    /// Shows m_channels in the lines and the display.
    void showChannels();
    /// Lets the person choose a colour in the dialog and applies it.
    void chooseColor();

    QPushButton* m_colorDisp = nullptr;
    std::vector<QLineEdit*> m_lines; // in channel order; children of the edition frame
    std::vector<float> m_channels; // as last refreshed, typed or chosen

private:
    void addChannel(QChar letter);
    QColor color() const;
    void updateColorDisplay();
    void displayColor(const QColor& color);
    void fillLines();

    const ColorBoxStyle& m_style;
};
