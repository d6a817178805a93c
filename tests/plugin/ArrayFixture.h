// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "TableInput.h"

#include <QAbstractButton>
#include <QUndoStack>

#include <optional>

/// The fixture of tests that show a field with values of their own, an array mostly.
class ArrayFixture : public EditorFixture {
public:
    /// Gives the first node's field of that type these values and selects it.
    KnField& show(const char* type, const char* values)
    {
        KnField& shown = *field(type);
        if (!shown.set(values))
            qFatal("%s refuses %s", type, values);
        select(&shown);
        return shown;
    }
    KnField& show(const QString& type, const QString& values)
    {
        return show(type.toLatin1().constData(), values.toLatin1().constData());
    }
    TableInput table() const { return TableInput(*this); }
    int commands() const { return undoStack().count(); }

    void clickButton(const char* name)
    {
        QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
        settle();
    }
    /// Changes an array as another part of the program would: a row that comes before another one
    /// is a + with its number, one that goes a -, and the rest is the text of the whole.
    static void change(KnField& field, const QString& change)
    {
        auto& array = static_cast<KnMField&>(field);
        if (change.startsWith(u'+'))
            array.insertValues(change.mid(1).toInt(), 1);
        else if (change.startsWith(u'-'))
            array.removeValues(change.mid(1).toInt(), 1);
        else
            array.set(change.toLatin1().constData());
    }
    /// A key where the focus is.
    static void press(int key)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        settle();
    }
};

/// Base of the tests of arrays: a new fixture for each test function.
class ArrayTest : public QObject {
    Q_OBJECT
protected Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_fixture.emplace();
    }
    void cleanup() { m_fixture.reset(); }

protected:
    std::optional<ArrayFixture> m_fixture;
};
