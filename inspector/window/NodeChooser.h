// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnType.h"

#include <QDialog>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

class QLineEdit;
class QListView;
class QPushButton;

/// Asks for the type of a new node: a list below a line that narrows it. The line keeps the focus,
/// and its Up and Down keys move through the list.
class NodeChooser : public QDialog {
    Q_OBJECT
public:
    explicit NodeChooser(QWidget* parent);

Q_SIGNALS:
    void typeChosen(const KnType& type);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void narrow(const QString& text);
    void choose();

    QStandardItemModel m_types;
    QSortFilterProxyModel m_shown;
    QLineEdit* m_line; // child
    QListView* m_list; // child
    QPushButton* m_add; // child
};
