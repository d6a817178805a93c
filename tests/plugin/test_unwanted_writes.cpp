// SPDX-License-Identifier: BSD-3-Clause
#include "DialogInput.h"
#include "EditorCase.h"
#include "KnSFields.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QUndoStack>

namespace {

/// Everything that has an editor write, as what a person left behind may do at any later time.
void pokeEverything(CrvFieldEditors& editor)
{
    const KbVec4f color(1, 1, 1, 1);
    editor.applyChanges();
    editor.setFieldValue(0, 0, QStringLiteral("7"));
    editor.swapFieldValues(0, 1);
    editor.setFieldColor(0, &color);
    editor.updateFromField();
    for (const char* name : { "m_defaultButton", "m_ignoreButton", "m_checkBoxes", "m_addButton",
             "m_deleteButton", "m_downButton" }) {
        if (auto* button = editor.getFrame()->findChild<QAbstractButton*>(QLatin1String(name)))
            button->click();
    }
    for (QLineEdit* line : editor.getFrame()->findChildren<QLineEdit*>()) {
        line->setModified(true);
        Q_EMIT line->returnPressed();
        Q_EMIT line->editingFinished();
    }
}

} // namespace

/// What looks like an edit and must write nothing: the field isn't shown any more, and may be gone,
/// or nothing was changed.
class TestUnwantedWrites : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init() { failOnWarnings(); }

    void aFieldThatIsNotShownIsNotWritten_data()
    {
        addRows({ singleValueCases(), compoundCases(), arrayCases() });
    }
    void aFieldThatIsNotShownIsNotWritten()
    {
        QFETCH(EditorCase, row);
        EditorFixture fixture;
        auto* const node = new KnTestNode;
        node->ref();
        KnField* const field = node->getField(row.type);
        QVERIFY(field->set(row.start));
        const QString start = EditorFixture::text(field);
        fixture.select(field);
        CrvFieldEditors& editor = *fixture.editor();
        QVERIFY(editor.shows(field));
        fixture.select(nullptr);
        pokeEverything(editor);
        QCOMPARE(EditorFixture::text(field), start);
        QVERIFY(!field->isIgnored() && !editor.shows(field));
        node->unref();
        pokeEverything(editor);
        QCOMPARE(fixture.undoStack().count(), 0);
    }

    void anIgnoreButtonLetGoBesideItself_data()
    {
        QTest::addColumn<bool>("ignored");
        QTest::newRow("SFBool") << true;
        QTest::newRow("MFFloat") << false;
    }
    void anIgnoreButtonLetGoBesideItself()
    {
        QFETCH(bool, ignored);
        EditorFixture fixture;
        KnField* const field = fixture.field(QTest::currentDataTag());
        field->setIgnored(ignored ? 1 : 0);
        fixture.select(field);
        auto* const button = fixture.child<QAbstractButton>("m_ignoreButton");
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseMove(button, QPoint(-50, 5));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-50, 5));
        EditorFixture::settle();
        QCOMPARE(fixture.undoStack().count(), 0);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(field->isIgnored() != 0, !ignored);
        QCOMPARE(fixture.undoStack().count(), 1);
    }

    void aFieldThatWentAwayIsNotWritten()
    {
        WfSFColorWidget editor;
        editor.load();
        auto field = std::make_unique<KnSFColor>();
        editor.attachField(field.get());
        editor.updateFromField();
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(editor.getFrame()));
        // An editor without a dock writes, too.
        auto* const line = editor.getFrame()->findChild<QLineEdit*>();
        typeInto(line, QStringLiteral("0.25"));
        QCOMPARE(field->getValue()[0], 0.25F);
        const auto goAway = [&field](QColorDialog* dialog) {
            field.reset();
            dialog->accept();
        };
        QVERIFY(inDialog<QColorDialog>(
            editor.getFrame()->findChild<QPushButton*>(QStringLiteral("m_colorDisp")), goAway));
        typeInto(line, QStringLiteral("0.5"));
        QTest::keyClick(line, Qt::Key_Escape);
        pokeEverything(editor);
        QVERIFY(!editor.shows(field.get()));
        editor.deactivate();
        editor.unload();
    }
};

QTEST_MAIN(TestUnwantedWrites)
#include "test_unwanted_writes.moc"
