// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TestShell.h"
#include "WfMFieldTable.h"
#include "WfMFieldWidget.h"

#include <QLineEdit>
#include <QTest>

/// A table, used as a person does.
class TableInput {
public:
    explicit TableInput(WfMFieldTable* table)
        : m_table(table)
    {
    }

    WfMFieldTable* operator->() const { return m_table; }

    QRect cell(int row, int column) const
    {
        return m_table->visualRect(m_table->model()->index(row, column));
    }

    void click(int row, int column, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(
            m_table->viewport(), Qt::LeftButton, modifiers, cell(row, column).center());
    }

    /// Opens a cell's editor with a double click.
    QWidget* open(int row, int column) const
    {
        click(row, column);
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, cell(row, column).center());
        QWidget* const editor = openEditor();
        if (!editor)
            qFatal("no editor opens in cell %d, %d", row, column);
        return editor;
    }

    /// The cell editor on the screen; null if none.
    QWidget* openEditor() const
    {
        for (QWidget* child :
            m_table->viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    /// The line of an editor, which may be a slider.
    static QLineEdit* line(QWidget* editor)
    {
        auto* const line = qobject_cast<QLineEdit*>(editor);
        return line ? line : editor->findChild<QLineEdit*>(QStringLiteral("m_lineEdit"));
    }

    /// Opens a cell and replaces its text, without leaving it.
    QLineEdit* type(int row, int column, const QString& text) const
    {
        QLineEdit* const edit = line(open(row, column));
        edit->selectAll();
        QTest::keyClicks(edit, text);
        return edit;
    }

    /// Replaces a cell's text and presses Return.
    void typeInto(int row, int column, const QString& text) const
    {
        QTest::keyClick(type(row, column, text), Qt::Key_Return);
        TestShell::settle();
    }

private:
    WfMFieldTable* m_table; // not owned
};
