// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjects.h"
#include "EditorFixture.h"
#include "KnNodePtr.h"
#include "Machine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

/// The plug-in's own editors on the properties of an object.
class TestObjectEditors : public EditorFixture {
    Q_OBJECT

    KnField* property(const char* name) { return m_node->getField(name); }

private Q_SLOTS:
    void init()
    {
        EditorFixture::init();
        m_machine = std::make_unique<Machine>();
        m_node = KnNodePtr(crvObjectNode(m_machine.get()));
    }
    void cleanup()
    {
        EditorFixture::cleanup();
        m_node = KnNodePtr();
        m_machine.reset();
    }

    void anEditGoesThroughTheSetterAndBack_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("widget"); // the last of that object name
        QTest::addColumn<QString>("typed"); // nothing for a click, or for the key of a combo box
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* name, const QString& widget, const QString& typed,
                             const QVariant& value, const QString& shown) {
            QTest::addRow("%s", name) << QByteArray(name) << widget << typed << value << shown;
        };
        row("speed", u"m_lineEdit"_s, u"200"_s, 100, u"100"_s); // clamped by the setter
        row("label", u"lineEdit"_s, u"new"_s, u"new"_s, u"new"_s);
        row("mode", u"comboBox"_s, {}, QVariant::fromValue(Machine::Running), u"Running"_s);
        row("parts", u"m_checkBoxes"_s, {}, QVariant::fromValue(Machine::Wheel | Machine::Motor),
            u"Motor"_s);
        row("paint", u"SFColorRGBALine"_s, u"0"_s, QColor(255, 0, 0, 0), u"0"_s);
        row("place", u"lineEdit"_s, u"5 6  7 8"_s, QRect(5, 6, 7, 8), u"5 6 7 8"_s);
        row("serial", u"lineEdit"_s, u"9223372036854775807"_s, Q_INT64_C(9223372036854775807),
            u"9223372036854775807"_s);
    }
    void anEditGoesThroughTheSetterAndBack()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, widget);
        QFETCH(QString, typed);
        QFETCH(QVariant, value);
        QFETCH(QString, shown);
        const QVariant before = m_machine->property(name);
        select(property(name));
        QVERIFY(editor());
        auto* const input = editor()->getFrame()->findChildren<QWidget*>(widget).last();
        if (!typed.isEmpty())
            typeInto(input, typed);
        else if (qobject_cast<QComboBox*>(input))
            QTest::keyClick(input, Qt::Key_Down);
        else
            QTest::mouseClick(input, Qt::LeftButton, {}, QPoint(8, input->height() / 2));
        settle();
        QCOMPARE(m_machine->property(name), value);
        const QVariant showing
            = input->property(qobject_cast<QComboBox*>(input) ? "currentText" : "text");
        QCOMPARE(showing.toString(), shown);
        // Some editors write at each key, and that of masks without a command.
        QCOMPARE(commands() > 0, name != "parts");
        while (undoStack().canUndo())
            undo();
        QCOMPARE(m_machine->property(name), commands() > 0 ? before : value);
        while (undoStack().canRedo())
            redo();
        QCOMPARE(m_machine->property(name), value);
    }

    void cellsOfAList()
    {
        select(property("steps"));
        table().typeInto(1, 0, u"7"_s);
        QCOMPARE(m_machine->m_steps, QList<int>({ 1, 7, 3 }));
        clickButton("m_addButton");
        QCOMPARE(m_machine->m_steps.size(), 4);
        undo();
        QCOMPARE(m_machine->m_steps, QList<int>({ 1, 7, 3 }));
    }

    void whatTheProgramDoesIsShown()
    {
        select(property("speed"));
        m_machine->setSpeed(42);
        QTRY_COMPARE(child<QLineEdit>("m_lineEdit")->text(), u"42"_s);
        select(property("polled"));
        m_machine->m_polled = 43;
        QTRY_COMPARE(child<QLineEdit>("m_lineEdit")->text(), u"43"_s);
        QCOMPARE(commands(), 0);
    }

    void stepsOfADeadObjectDoNothing()
    {
        select(property("speed"));
        typeInto(child<QLineEdit>("m_lineEdit"), u"20"_s);
        settle();
        QCOMPARE(m_machine->m_speed, 20);
        m_machine.reset();
        settle();
        undo();
        redo();
        QVERIFY(!crvNodeObject(m_node.get()));
    }

    void anObjectDiesByAnEdit()
    {
        m_machine->m_blow = [this] { m_machine.reset(); };
        select(property("fuse"));
        QTest::mouseClick(child<QCheckBox>("m_box"), Qt::LeftButton, {}, QPoint(8, 8));
        settle();
        QVERIFY(!m_machine);
        undo();
    }

    /// A setter may run an event loop.
    void somethingElseIsSelectedInASetter()
    {
        const KnNodePtr other(crvObjectNode(this));
        connect(m_machine.get(), &Machine::labelChanged, this, [this, other] {
            CrvServices::getInstance()->selectNode(other.get());
            m_node = KnNodePtr(); // the tree's rows let go of it, too
        });
        select(property("label"));
        typeInto(child<QLineEdit>("lineEdit"), u"new"_s);
        settle();
        QCOMPARE(m_machine->m_label, u"new"_s);
        undo();
        QCOMPARE(m_machine->m_label, u"old"_s);
    }

private:
    std::unique_ptr<Machine> m_machine;
    KnNodePtr m_node;
};

QTEST_MAIN(TestObjectEditors)
#include "test_object_editors.moc"
