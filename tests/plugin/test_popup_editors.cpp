// SPDX-License-Identifier: BSD-3-Clause
#include "EditorFixture.h"
#include "TextRows.h"
#include "WindowInput.h"

#include <QDockWidget>
#include <QScreen>

class TestPopupEditors;
using Act = void (*)(TestPopupEditors& test);

Q_DECLARE_METATYPE(Act)

class TestPopupEditors : public EditorFixture {
    Q_OBJECT
private Q_SLOTS:
    void thePopupOpensBesideItsButton_data()
    {
        // Where the button is, in parts of the screen.
        addTextRows({ { "SFBox2f", "0.3" }, { "SFMatrix", "0.97" } });
    }
    void thePopupOpensBesideItsButton()
    {
        const auto [type, part] = textRow<2>();
        const bool isAtEnd = part == u"0.97";
        attach(qPrintable(type));
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target = QPoint(screen.width(), screen.height()) * part.toDouble();
        window().move(window().pos() + target - m_button->mapToGlobal(QPoint()));
        QTRY_VERIFY((m_button->mapToGlobal(QPoint()) - target).manhattanLength() < 40);
        QVERIFY(openPopup());

        QPoint expected = m_button->mapToGlobal(m_button->rect().bottomRight());
        const QSize room = m_frame->size() + m_button->size();
        if (isAtEnd)
            expected -= QPoint(room.width(), room.height());
        QTRY_COMPARE(m_frame->windowHandle()->framePosition(), expected);
        QVERIFY(QRect(QPoint(), screen).contains(m_frame->geometry()));
    }

    void thePopupOpensForTyping_data() { addTextRows({ { "Return" }, { "click" } }); }
    /// The button is the panel's tab stop, and the first digit typed counts.
    void thePopupOpensForTyping()
    {
        const bool byKey = textRow<1>()[0] == u"Return";
        attach("SFBox3s");
        for (int i = 0; i < 8 && !m_button->hasFocus(); ++i)
            press(Qt::Key_Tab);
        QVERIFY(m_button->hasFocus());
        // The grid is as fresh as the field, whose sensor hasn't run yet.
        field("SFBox3s")->set("1 2 3 4 5 6");
        byKey ? press(Qt::Key_Return) : clickThroughWindow(m_button);
        QVERIFY(m_frame->isVisible());
        QCOMPARE(m_lines[5]->text(), QStringLiteral("6"));
        press(Qt::Key_9);
        QCOMPARE(m_lines[0]->text(), QStringLiteral("9"));
        press(Qt::Key_Return);
        QCOMPARE(EditorFixture::text(field("SFBox3s")), QStringLiteral("9 2 3 4 5 6"));
        QVERIFY(m_frame->isVisible());
        clickThroughWindow(m_button);
        settle();
        QVERIFY(m_button->hasFocus());
    }

    void thePopupCloses_data()
    {
        QTest::addColumn<Act>("close");
        QTest::addColumn<QString>("text"); // of the field by then
        const auto row = [](const char* name, const char* text, Act close) {
            QTest::newRow(name) << close << QString::fromLatin1(text);
        };
        row("at a click on its button", "0 0 7 0", [](TestPopupEditors& test) {
            clickThroughWindow(test.m_button);
            // Window systems that give the press to what lies under the popup must not open it.
            QVERIFY(test.m_frame->testAttribute(Qt::WA_NoMouseReplay));
        });
        row("at a click outside", "0 0 7 0", [](TestPopupEditors& test) {
            clickThroughWindow(&test.window());
            QVERIFY(!test.m_frame->testAttribute(Qt::WA_NoMouseReplay));
        });
        // Neither the line's text is written nor the one that is left unfinished.
        row("at Esc", "0 0 0 0", [](TestPopupEditors& test) {
            test.m_lines[0]->selectAll();
            QTest::keyClicks(test.m_lines[0], QStringLiteral("-"));
            test.press(Qt::Key_Escape);
        });
        row("with the selection", "0 0 7 0", [](TestPopupEditors& test) {
            test.select(test.otherField("SFBox2f"));
            QCOMPARE(text(test.otherField("SFBox2f")), QStringLiteral("0 0 0 0"));
            test.select(test.field("SFBox2f"));
        });
        row("with its dock", "0 0 7 0", [](TestPopupEditors& test) {
            QWidget* dock = test.editor()->getFrame();
            while (!qobject_cast<QDockWidget*>(dock))
                dock = dock->parentWidget();
            dock->hide();
            QVERIFY(!test.m_frame->isVisible());
            dock->show();
        });
    }
    void thePopupCloses()
    {
        QFETCH(Act, close);
        QFETCH(QString, text);
        attach("SFBox2f");
        // Nothing else in the window has the focus, so that Qt knows nobody to give it back to.
        m_button->setFocusPolicy(Qt::NoFocus);
        if (QWidget* const focus = QApplication::focusWidget())
            focus->clearFocus();
        QVERIFY(openPopup());
        clickThroughWindow(m_frame);
        QVERIFY(m_frame->isVisible());
        clickThroughWindow(m_lines[2]);
        m_lines[2]->selectAll();
        press(Qt::Key_7);
        close(*this);
        settle();
        QVERIFY(!m_frame->isVisible() && !QApplication::activePopupWidget());
        QVERIFY(!m_frame->isAncestorOf(QApplication::focusWidget()));
        const int count = text.contains(u'7') ? 1 : 0;
        QCOMPARE(EditorFixture::text(field("SFBox2f")), text);
        QCOMPARE(commands(), count);
        QVERIFY(openPopup());
        QCOMPARE(linesShown("m_lineEdits"), text);
        QCOMPARE(commands(), count);
    }

private:
    /// Selects the field of that type, which has a popup.
    void attach(const char* type)
    {
        select(field(type));
        m_frame = child<QWidget>("m_popupFrame");
        m_button = child<QAbstractButton>("m_editButton");
        m_lines = m_frame->findChildren<QLineEdit*>();
    }
    /// A key for whatever has the focus, by way of the window system.
    void press(Qt::Key key) { QTest::keyClick(window().windowHandle(), key); }

    QWidget* m_frame = nullptr;
    QAbstractButton* m_button = nullptr;
    QList<QLineEdit*> m_lines;
};

QTEST_MAIN(TestPopupEditors)
#include "test_popup_editors.moc"
