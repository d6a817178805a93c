// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

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
class TestUnwantedWrites : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void aFieldThatIsNotShownIsNotWritten_data() { addEditorRows(); }
    void aFieldThatIsNotShownIsNotWritten()
    {
        QFETCH(EditorCase, row);
        auto* const node = new KnTestNode;
        node->ref();
        KnField* const field = node->getField(row.type);
        QVERIFY(field->set(row.start));
        const QString start = text(field);
        select(field);
        CrvFieldEditors& editor = *this->editor();
        QVERIFY(editor.shows(field));
        select(nullptr);
        pokeEverything(editor);
        QCOMPARE(text(field), start);
        QVERIFY(!field->isIgnored() && !editor.shows(field));
        node->unref();
        pokeEverything(editor);
        QCOMPARE(commands(), 0);
    }

    void anIgnoreButtonLetGoBesideItself()
    {
        KnField* const field = this->field("SFBool");
        field->setIgnored(1);
        select(field);
        auto* const button = child<QAbstractButton>("m_ignoreButton");
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseMove(button, QPoint(-50, 5));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-50, 5));
        settle();
        QVERIFY(field->isIgnored() && commands() == 0);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(!field->isIgnored() && commands() == 1);
    }
};

QTEST_MAIN(TestUnwantedWrites)
#include "test_unwanted_writes.moc"
