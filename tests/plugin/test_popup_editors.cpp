// SPDX-License-Identifier: BSD-3-Clause
#include "EditorCase.h"
#include "TextRows.h"
#include "WindowInput.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QLineEdit>
#include <QScreen>
#include <QUndoStack>

namespace {

/// A popup editor with the field selected.
class Popup : public EditorFixture {
public:
    explicit Popup(const char* type)
    {
        select(field(type));
        frame = child<QWidget>("m_popupFrame");
        button = child<QAbstractButton>("m_editButton");
        lines = frame->findChildren<QLineEdit*>();
    }
    /// Clicks the button with the grid closed and waits for the grid.
    bool open()
    {
        clickThroughWindow(button);
        return frame->isVisible() && QTest::qWaitForWindowExposed(frame);
    }
    /// A key for whatever has the focus, by way of the window system.
    void press(Qt::Key key) { QTest::keyClick(shell().window().windowHandle(), key); }

    QWidget* frame;
    QAbstractButton* button;
    QList<QLineEdit*> lines;
};

using Act = void (*)(Popup& popup);

} // namespace

Q_DECLARE_METATYPE(Act)

class TestPopupEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void thePopupOpensBesideItsButton_data()
    {
        // Where the button is, in parts of the screen.
        addTextRows({ { "SFBox2f", "0.3" }, { "SFMatrix", "0.97" } });
    }
    void thePopupOpensBesideItsButton()
    {
        const auto [type, part] = textRow<2>();
        const bool isAtEnd = part == u"0.97";
        Popup popup(qPrintable(type));
        QWidget& window = popup.shell().window();
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target = QPoint(screen.width(), screen.height()) * part.toDouble();
        window.move(window.pos() + target - popup.button->mapToGlobal(QPoint()));
        QTRY_VERIFY((popup.button->mapToGlobal(QPoint()) - target).manhattanLength() < 40);
        QVERIFY(popup.open());

        QPoint expected = popup.button->mapToGlobal(popup.button->rect().bottomRight());
        const QSize room = popup.frame->size() + popup.button->size();
        if (isAtEnd)
            expected -= QPoint(room.width(), room.height());
        QTRY_COMPARE(popup.frame->windowHandle()->framePosition(), expected);
        QVERIFY(QRect(QPoint(), screen).contains(popup.frame->geometry()));
    }

    void thePopupOpensForTyping_data() { addTextRows({ { "Return" }, { "click" } }); }
    /// The button is the panel's tab stop, and the first digit typed counts.
    void thePopupOpensForTyping()
    {
        const bool byKey = textRow<1>()[0] == u"Return";
        Popup popup("SFBox3s");
        for (int i = 0; i < 8 && !popup.button->hasFocus(); ++i)
            popup.press(Qt::Key_Tab);
        QVERIFY(popup.button->hasFocus());
        // The grid is as fresh as the field, whose sensor hasn't run yet.
        popup.field("SFBox3s")->set("1 2 3 4 5 6");
        byKey ? popup.press(Qt::Key_Return) : clickThroughWindow(popup.button);
        QVERIFY(popup.frame->isVisible());
        QCOMPARE(popup.lines[5]->text(), QStringLiteral("6"));
        popup.press(Qt::Key_9);
        QCOMPARE(popup.lines[0]->text(), QStringLiteral("9"));
        popup.press(Qt::Key_Return);
        QCOMPARE(EditorFixture::text(popup.field("SFBox3s")), QStringLiteral("9 2 3 4 5 6"));
        QVERIFY(popup.frame->isVisible());
        clickThroughWindow(popup.button);
        EditorFixture::settle();
        QVERIFY(popup.button->hasFocus());
    }

    void thePopupCloses_data()
    {
        QTest::addColumn<Act>("close");
        QTest::addColumn<QString>("text"); // of the field by then
        const auto row = [](const char* name, const char* text, Act close) {
            QTest::newRow(name) << close << QString::fromLatin1(text);
        };
        row("at a click on its button", "0 0 7 0", [](Popup& popup) {
            clickThroughWindow(popup.button);
            // Window systems that give the press to what lies under the popup must not open it.
            QVERIFY(popup.frame->testAttribute(Qt::WA_NoMouseReplay));
        });
        row("at a click outside", "0 0 7 0", [](Popup& popup) {
            clickThroughWindow(&popup.shell().window());
            QVERIFY(!popup.frame->testAttribute(Qt::WA_NoMouseReplay));
        });
        // Neither the line's text is written nor the one that is left unfinished.
        row("at Esc", "0 0 0 0", [](Popup& popup) {
            popup.lines[0]->selectAll();
            QTest::keyClicks(popup.lines[0], QStringLiteral("-"));
            popup.press(Qt::Key_Escape);
        });
        row("with the selection", "0 0 7 0", [](Popup& popup) {
            popup.select(popup.otherField("SFBox2f"));
            QCOMPARE(EditorFixture::text(popup.otherField("SFBox2f")), QStringLiteral("0 0 0 0"));
            popup.select(popup.field("SFBox2f"));
        });
        row("with its dock", "0 0 7 0", [](Popup& popup) {
            QWidget* dock = popup.editor()->getFrame();
            while (!qobject_cast<QDockWidget*>(dock))
                dock = dock->parentWidget();
            dock->hide();
            QVERIFY(!popup.frame->isVisible());
            dock->show();
        });
    }
    void thePopupCloses()
    {
        QFETCH(Act, close);
        QFETCH(QString, text);
        Popup popup("SFBox2f");
        // Nothing else in the window has the focus, so that Qt knows nobody to give it back to.
        popup.button->setFocusPolicy(Qt::NoFocus);
        if (QWidget* const focus = QApplication::focusWidget())
            focus->clearFocus();
        QVERIFY(popup.open());
        clickThroughWindow(popup.frame);
        QVERIFY(popup.frame->isVisible());
        clickThroughWindow(popup.lines[2]);
        popup.lines[2]->selectAll();
        popup.press(Qt::Key_7);
        close(popup);
        EditorFixture::settle();
        QVERIFY(!popup.frame->isVisible() && !QApplication::activePopupWidget());
        QVERIFY(!popup.frame->isAncestorOf(QApplication::focusWidget()));
        const int commands = text.contains(u'7') ? 1 : 0;
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), text);
        QCOMPARE(popup.undoStack().count(), commands);
        QVERIFY(popup.open());
        QCOMPARE(linesShown(popup, "m_lineEdits"), text);
        QCOMPARE(popup.undoStack().count(), commands);
    }
};

QTEST_MAIN(TestPopupEditors)
#include "test_popup_editors.moc"
