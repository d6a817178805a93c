// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorFixture.h"

#include <QFileDialog>
#include <QTemporaryDir>

class TestFilePathEditor : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_path = m_folder.filePath(QStringLiteral("\u20AC \u4E2D.png"));
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void aChosenFileIsWrittenAtOnce()
    {
        show("SFFilePathString", "\"\"");
        QVERIFY(inFileDialog([this](QFileDialog* dialog) { enterPath(dialog); }));
        QCOMPARE(state(), QStringLiteral("\"%1\"|\"\"|%1|1").arg(m_path));
        undo();
        QCOMPARE(state(), QStringLiteral("\"\"|\"\"||1"));
    }

    void anUnwantedChoiceChangesNothing()
    {
        show("SFFilePathString", "\"old\"");
        QVERIFY(inFileDialog([](QFileDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }));
        QCOMPARE(state(), QStringLiteral("\"old\"|\"\"|old|0"));
        // What was chosen for one field never reaches another.
        QVERIFY(inFileDialog([this](QFileDialog* dialog) {
            select(otherField("SFFilePathString"));
            enterPath(dialog);
        }));
        QCOMPARE(state(), QStringLiteral("\"old\"|\"\"||0"));
    }

private:
    template <class Act>
    bool inFileDialog(Act act)
    {
        return inDialogOpenedBy<QFileDialog>([this] { clickButton("openFileButton"); }, act);
    }
    void enterPath(QFileDialog* dialog)
    {
        auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        line->setText(m_path);
        QTest::keyClick(line, Qt::Key_Return);
    }
    /// Of both fields, the line and the undo stack.
    QString state()
    {
        return QStringLiteral("%1|%2|%3|%4")
            .arg(text(field("SFFilePathString")), text(otherField("SFFilePathString")),
                linesShown("lineEdit"), QString::number(commands()));
    }

    QTemporaryDir m_folder;
    QString m_path;
};

QTEST_MAIN(TestFilePathEditor)
#include "test_file_path_editor.moc"
