// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QSpinBox>

/// The quick access to a table's rows, which count from 1 here. Return repeats the jump to the
/// number that it shows.
class AccessButtonPrivate : public QSpinBox {
    Q_OBJECT
public:
    AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent, const char* name);
    AccessButtonPrivate(QWidget* parent, const char* name);

public Q_SLOTS:
    /// `value` is a row, from 0.
    void setNewValue(int value);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
