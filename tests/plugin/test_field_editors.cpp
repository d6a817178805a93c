// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"

namespace {

/// A text of a case, or that of the field if there is none.
QString orText(const char* text, const char* fieldText)
{
    return QString::fromUtf8(text ? text : fieldText);
}

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

/// The road that every field editor passes, and what looks like an edit and must write nothing.
class TestFieldEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void road_data() { addEditorRows(); }
    void road()
    {
        QFETCH(EditorCase, row);
        KnField* const field = this->field(row.type);
        KnField* const other = otherField(row.type);
        QUndoStack& stack = undoStack();
        QVERIFY2(field && other, row.type);
        const QString shownAtStart = orText(row.shownAtStart, row.start);
        const QString defaultText = text(other);

        // Opening shows the field and writes nothing.
        QVERIFY(field->set(row.start));
        const QString start = text(field);
        select(field);
        const CrvFieldEditors* const shown = editor();
        QVERIFY(shown && editor()->getFrame()->isVisible());
        QCOMPARE(row.shown(*this), shownAtStart);
        QCOMPARE(text(field), start);
        QCOMPARE(stack.count(), 0);

        // A person's edit writes, and goes back and forth.
        row.edit(*this);
        settle();
        QCOMPARE(text(field), QLatin1String(row.edited));
        QCOMPARE(row.shown(*this), orText(row.shownEdited, row.edited));
        QCOMPARE(stack.count(), row.commands);
        if (row.commands > 0) {
            for (int i = 0; i < row.commands; ++i)
                undo();
            QCOMPARE(text(field), start);
            QCOMPARE(row.shown(*this), shownAtStart);
            for (int i = 0; i < row.commands; ++i)
                redo();
            QCOMPARE(text(field), QLatin1String(row.edited));
        }

        // A change from outside shows and makes no command.
        write(field, row.outside);
        const QString outside = text(field);
        QCOMPARE(row.shown(*this), orText(row.shownOutside, row.outside));
        QCOMPARE(stack.count(), row.commands);

        clickButton("m_defaultButton");
        QCOMPARE(text(field), defaultText);
        QCOMPARE(stack.count(), row.commands + 1);
        undo();
        redo();
        QCOMPARE(text(field), defaultText);
        undo();
        QCOMPARE(text(field), outside);

        auto* const ignore = child<QAbstractButton>("m_ignoreButton");
        clickButton("m_ignoreButton");
        QVERIFY(field->isIgnored() && ignore->isChecked());
        undo();
        QVERIFY(!field->isIgnored() && !ignore->isChecked());

        // Another field of the type takes the editor over; neither is written.
        QVERIFY(other->set(row.start));
        other->setIgnored(1);
        // The lines that hold a text as it is write it whenever they are left.
        static const QSet<QByteArray> texts { "SFFilePathString", "SFName", "SFString" };
        const int commands = stack.index() + (texts.contains(row.type) ? 1 : 0);
        select(other);
        QCOMPARE(editor(), shown);
        QCOMPARE(row.shown(*this), shownAtStart);
        QVERIFY(ignore->isChecked());
        QCOMPARE(text(field), outside);
        QCOMPARE(text(other), start);
        QCOMPARE(stack.index(), commands);
        clickButton("m_ignoreButton");
        QVERIFY(!other->isIgnored() && !ignore->isChecked());
        QCOMPARE(stack.index(), commands + 1);
    }

    void theIgnoreButtonActsWhenItIsReleased()
    {
        KnField* const field = this->field("MFInt32");
        select(field);
        auto* const ignore = child<QAbstractButton>("m_ignoreButton");
        bool wasIgnored = false;
        connect(ignore, &QAbstractButton::released, this,
            [ignored = &wasIgnored, field] { *ignored = field->isIgnored(); });
        QTest::mousePress(ignore, Qt::LeftButton);
        QTest::mouseRelease(ignore, Qt::LeftButton);
        QVERIFY(wasIgnored); // before the button was clicked
    }

    /// The field isn't shown any more, and may be gone.
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

QTEST_MAIN(TestFieldEditors)
#include "test_field_editors.moc"
