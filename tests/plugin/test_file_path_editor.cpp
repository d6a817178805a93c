// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorCase.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUndoStack>

namespace {

/// The editor of a path, with its button for a dialog.
class Paths : public EditorFixture {
public:
    Paths() { select(field("SFFilePathString")); }

    template <class Act>
    bool inFileDialog(Act act)
    {
        return inDialog<QFileDialog>(child<QPushButton>("openFileButton"), act);
    }
    /// Of both fields, the line and the undo stack.
    QString state()
    {
        return QStringList { text(field("SFFilePathString")), text(otherField("SFFilePathString")),
            linesShown(*this, "lineEdit"), QString::number(undoStack().count()) }
            .join(u'|');
    }
};

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
        Paths paths;
        QVERIFY(paths.inFileDialog([this](QFileDialog* dialog) { enterPath(dialog, m_path); }));
        QCOMPARE(paths.state(), QStringLiteral("\"%1\"|\"\"|%1|1").arg(m_path));
        paths.undo();
        QCOMPARE(paths.state(), QStringLiteral("\"\"|\"\"||1"));
    }

    void anUnwantedChoiceChangesNothing()
    {
        Paths paths;
        EditorFixture::write(paths.field("SFFilePathString"), "\"old\"");
        QVERIFY(paths.inFileDialog(
            [](QFileDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }));
        QCOMPARE(paths.state(), QStringLiteral("\"old\"|\"\"|old|0"));
        // What was chosen for one field never reaches another.
        QVERIFY(paths.inFileDialog([&](QFileDialog* dialog) {
            paths.select(paths.otherField("SFFilePathString"));
            enterPath(dialog, m_path);
        }));
        QCOMPARE(paths.state(), QStringLiteral("\"old\"|\"\"||0"));
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

QTEST_MAIN(TestFilePathEditor)
#include "test_file_path_editor.moc"
