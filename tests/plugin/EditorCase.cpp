// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

#include <QLineEdit>

QString EditorCase::editorName() const
{
    return editor ? QString::fromLatin1(editor)
                  : QStringLiteral("Wf%1Widget").arg(QLatin1String(type));
}

void EditorCase::edit(EditorFixture& fixture) const
{
    if (act)
        act(fixture);
    else
        typeIntoLast(fixture, line, typed);
}

QString EditorCase::shown(EditorFixture& fixture) const
{
    return read ? read(fixture) : linesShown(fixture, line);
}

void addRows(std::initializer_list<std::vector<EditorCase>> cases)
{
    QTest::addColumn<EditorCase>("row");
    for (const auto& each : cases) {
        for (const EditorCase& row : each)
            QTest::newRow(row.type) << row;
    }
}

void typeInto(QWidget* lineEdit, const QString& text)
{
    QTest::mouseClick(lineEdit, Qt::LeftButton);
    QTest::keyClick(lineEdit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(lineEdit, text);
    QTest::keyClick(lineEdit, Qt::Key_Return);
}

void typeIntoLast(EditorFixture& fixture, const char* objectName, const char* text)
{
    QWidget* const frame = fixture.editor()->getFrame();
    typeInto(
        frame->findChildren<QLineEdit*>(QLatin1String(objectName)).last(), QString::fromUtf8(text));
}

QString linesShown(EditorFixture& fixture, const char* objectName)
{
    QStringList texts;
    for (const QLineEdit* line :
        fixture.editor()->getFrame()->findChildren<QLineEdit*>(QLatin1String(objectName)))
        texts << line->text();
    return texts.join(u' ');
}
