// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorRow.h"

#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUndoStack>

namespace {

void enterPath(QFileDialog* dialog, const QString& path)
{
    auto* const line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    line->setText(path);
    QTest::keyClick(line, Qt::Key_Return);
}

} // namespace

class TestFilePathEditor : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(m_folder.isValid());
        m_path = m_folder.filePath(QStringLiteral("\u20AC \u4E2D.png"));
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    void init() { failOnWarnings(); }

    void aChosenFileIsWrittenAtOnce()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFFilePathString"));
        QVERIFY(inDialog<QFileDialog>(
            fixture.child<QPushButton>("openFileButton"), [this](QFileDialog* dialog) {
                QCOMPARE(dialog->windowTitle(), QStringLiteral("Open File"));
                enterPath(dialog, m_path);
            }));
        QCOMPARE(linesShown(fixture, "lineEdit"), m_path);
        QCOMPARE(
            QString::fromStdString(fixture.node().SFFilePathString.getValue().toUtf8()), m_path);
        QCOMPARE(fixture.undoStack().count(), 1);
        fixture.undo();
        QCOMPARE(linesShown(fixture, "lineEdit"), QString());
        fixture.redo();
        QCOMPARE(linesShown(fixture, "lineEdit"), m_path);
    }

    void aCancelledDialogChangesNothing()
    {
        EditorFixture fixture;
        EditorFixture::write(fixture.field("SFFilePathString"), "\"old\"");
        fixture.select(fixture.field("SFFilePathString"));
        QVERIFY(inDialog<QFileDialog>(fixture.child<QPushButton>("openFileButton"),
            [](QFileDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }));
        QCOMPARE(linesShown(fixture, "lineEdit"), QStringLiteral("old"));
        QCOMPARE(EditorFixture::text(fixture.field("SFFilePathString")), QStringLiteral("\"old\""));
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void aPathChosenForOneFieldNeverReachesAnother()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFFilePathString"));
        QVERIFY(inDialog<QFileDialog>(
            fixture.child<QPushButton>("openFileButton"), [&](QFileDialog* dialog) {
                fixture.select(fixture.otherField("SFFilePathString"));
                enterPath(dialog, m_path);
            }));
        QVERIFY(fixture.node().SFFilePathString.getValue().isEmpty());
        QVERIFY(fixture.otherNode().SFFilePathString.getValue().isEmpty());
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void leavingTheLineAlwaysWrites()
    {
        EditorFixture fixture;
        fixture.select(fixture.field("SFFilePathString"));
        auto* const line = fixture.child<QLineEdit>("lineEdit");
        line->setFocus();
        QGuiApplication::clipboard()->setText(m_path);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(fixture.undoStack().count(), 0);
        QTest::keyClick(line, Qt::Key_Tab);
        EditorFixture::settle();
        QCOMPARE(fixture.undoStack().count(), 1);
        QCOMPARE(
            QString::fromStdString(fixture.node().SFFilePathString.getValue().toUtf8()), m_path);
        line->setFocus();
        QTest::keyClick(line, Qt::Key_Tab);
        QCOMPARE(fixture.undoStack().count(), 2);
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

QTEST_MAIN(TestFilePathEditor)
#include "test_file_path_editor.moc"
