// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLabel>

/// A line of plain text that shows as much as there is room for, and never asks for more. What is
/// cut off stands in the tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    void setWholeText(const QString& text);
    const QString& wholeText() const { return m_text; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    const Qt::TextElideMode m_mode;
    QString m_text;
};
