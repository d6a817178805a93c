// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QLineEdit>

void typeInto(QWidget* lineEdit, const QString& text)
{
    QTest::mouseClick(lineEdit, Qt::LeftButton);
    QTest::keyClick(lineEdit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(lineEdit, text);
    QTest::keyClick(lineEdit, Qt::Key_Return);
}

QString linesShown(EditorFixture& fixture, const char* objectName)
{
    QStringList texts;
    for (const QLineEdit* line :
        fixture.editor()->getFrame()->findChildren<QLineEdit*>(QLatin1String(objectName)))
        texts << line->text();
    return texts.join(u' ');
}
