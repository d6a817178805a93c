// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

/// The line in which a value is edited in place. A text that was refused stays in it, with the
/// reason beside it, until the person types on.
class FieldLineEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit FieldLineEdit(QWidget* parent);
    ~FieldLineEdit() override;

    void refuse(const QString& reason);
    bool isRefused() const { return m_reason; }
    /// Empty if nothing is refused.
    QString reason() const;

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void dropReason();
    void placeReason();

    QPointer<QLabel> m_reason; // child of this line's parent; null while nothing is refused
};
