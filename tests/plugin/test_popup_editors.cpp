// SPDX-License-Identifier: BSD-3-Clause
#include "ComponentValidator.h"
#include "EditorRow.h"
#include "PopupPlacement.h"
#include "WindowInput.h"

#include <QAbstractButton>
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
    /// Types in place of what a line of the grid holds.
    void type(int line, const char* text)
    {
        clickThroughWindow(lines[line]);
        lines[line]->selectAll();
        QTest::keyClicks(lines[line], QLatin1String(text));
    }

    QWidget* frame;
    QAbstractButton* button;
    QList<QLineEdit*> lines;
};

} // namespace

class TestPopupEditors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void placement_data()
    {
        QTest::addColumn<QPoint>("wanted");
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QPoint>("position");
        const QSize screen(800, 600);
        QTest::newRow("room on both sides") << QPoint(10, 20) << screen << QPoint(10, 20);
        QTest::newRow("just fits") << QPoint(520, 480) << screen << QPoint(520, 480);
        QTest::newRow("a pixel too far right") << QPoint(521, 480) << screen << QPoint(241, 480);
        QTest::newRow("a pixel too low") << QPoint(520, 481) << screen << QPoint(520, 361);
        QTest::newRow("in the corner") << QPoint(799, 599) << screen << QPoint(519, 479);
        QTest::newRow("left of the screen") << QPoint(-50, -60) << screen << QPoint(-50, -60);
        QTest::newRow("on a screen to the right") << QPoint(1000, 20) << screen << QPoint(720, 20);
        QTest::newRow("tiny screen") << QPoint(10, 20) << QSize(100, 60) << QPoint(-270, -100);
    }
    void placement()
    {
        QFETCH(QPoint, wanted);
        QFETCH(QSize, screen);
        QTEST(popupPosition(wanted, screen, QSize(280, 120)), "position");
    }

    void noPlaceOfAScreenPushesThePopupOut()
    {
        const QSize room(260 + 20, 126 + 20);
        for (const QSize& screen : { QSize(800, 600), QSize(1920, 1040), QSize(570, 3000) }) {
            for (int x = 0; x < screen.width(); x += 7) {
                for (int y = 0; y < screen.height(); y += 7) {
                    const QPoint p = popupPosition(QPoint(x, y), screen, room);
                    QVERIFY(QRect(QPoint(), screen).contains(QRect(p, room)));
                }
            }
        }
    }

    void thePopupOpensBesideItsButton_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QPointF>("place"); // of the button, in parts of the screen
        for (const char* type : { "SFBox2f", "SFBox3s", "SFMatrix" }) {
            for (const QPointF& place :
                { QPointF(0.3, 0.3), QPointF(0.9, 0.3), QPointF(0.3, 0.97), QPointF(0.97, 0.97) })
                QTest::addRow("%s %g %g", type, place.x(), place.y()) << QByteArray(type) << place;
        }
    }
    void thePopupOpensBesideItsButton()
    {
        QFETCH(QByteArray, type);
        QFETCH(QPointF, place);
        Popup popup(type.constData());
        QWidget& window = popup.shell().window();
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        const QPoint target(int(place.x() * screen.width()), int(place.y() * screen.height()));
        window.move(window.pos() + target - popup.button->mapToGlobal(QPoint()));
        const auto nearTarget
            = [&] { return (popup.button->mapToGlobal(QPoint()) - target).manhattanLength() < 40; };
        QTRY_VERIFY(nearTarget());
        QVERIFY(popup.open());

        const QPoint corner = popup.button->mapToGlobal(popup.button->rect().bottomRight());
        const QSize room = popup.frame->size() + popup.button->size();
        QPoint expected = corner;
        if (place.x() > 0.5)
            expected.rx() -= room.width();
        if (place.y() > 0.5)
            expected.ry() -= room.height();
        QTRY_COMPARE(popup.frame->windowHandle()->framePosition(), expected);
        QVERIFY(QRect(QPoint(), screen).contains(popup.frame->geometry()));
    }

    void thePopupCloses_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("at a click on its button") << 0;
        QTest::newRow("at a click outside") << 1;
        QTest::newRow("at Esc") << 2;
        QTest::newRow("at Esc in a line") << 3;
        QTest::newRow("with the selection") << 4;
        QTest::newRow("with its dock") << 5;
    }
    void thePopupCloses()
    {
        QFETCH(int, how);
        Popup popup("SFBox2f");
        QVERIFY(popup.open());
        switch (how) {
        case 0:
            clickThroughWindow(popup.button);
            // Window systems that give the press to what lies under the popup must not open it.
            QVERIFY(popup.frame->testAttribute(Qt::WA_NoMouseReplay));
            break;
        case 1:
            clickThroughWindow(&popup.shell().window());
            QVERIFY(!popup.frame->testAttribute(Qt::WA_NoMouseReplay));
            break;
        case 2:
            QTest::keyClick(popup.frame, Qt::Key_Escape);
            break;
        case 3:
            clickThroughWindow(popup.lines[2]);
            QTest::keyClick(popup.lines[2], Qt::Key_Escape);
            break;
        case 4:
            popup.select(popup.field("SFBool"));
            popup.select(popup.field("SFBox2f"));
            break;
        default:
            popup.plugin().getExtensions().back()->hide();
            popup.editor()->getFrame()->window()->hide();
            popup.editor()->getFrame()->window()->show();
        }
        EditorFixture::settle();
        QVERIFY(!popup.frame->isVisible());
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(popup.open());
        QCOMPARE(popup.undoStack().count(), 0);
    }

    void aClickInsideAndReturnLeaveThePopupOpen()
    {
        Popup popup("SFMatrix");
        QVERIFY(popup.open());
        clickThroughWindow(popup.frame);
        clickThroughWindow(popup.lines[5]);
        QTest::keyClick(popup.lines[5], Qt::Key_Return);
        EditorFixture::settle();
        QVERIFY(popup.frame->isVisible());
        // Nothing was edited, but Return always applies.
        QCOMPARE(popup.undoStack().count(), 1);
    }

    void aTextThatWasNotAppliedDoesNotOutliveARefresh()
    {
        Popup popup("SFBox2f");
        EditorFixture::write(popup.field("SFBox2f"), "0 0 1 1");
        QVERIFY(popup.open());
        popup.type(1, "7");
        QCOMPARE(popup.lines[1]->text(), QStringLiteral("7"));
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 0 1 1"));
        EditorFixture::write(popup.field("SFBox2f"), "0 0 2 2");
        QCOMPARE(linesShown(popup, "m_lineEdits"), QStringLiteral("0 0 2 2"));
        clickThroughWindow(popup.button);
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 0 2 2"));
        QCOMPARE(popup.undoStack().count(), 0);
    }

    void closingLeavesTheLineAndAppliesIt_data()
    {
        QTest::addColumn<bool>("bySelection");
        QTest::newRow("at Esc") << false;
        QTest::newRow("with the selection") << true;
    }
    void closingLeavesTheLineAndAppliesIt()
    {
        QFETCH(bool, bySelection);
        Popup popup("SFBox2f");
        QVERIFY(popup.open());
        popup.type(1, "7");
        if (bySelection)
            popup.select(popup.otherField("SFBox2f"));
        else
            QTest::keyClick(popup.lines[1], Qt::Key_Escape);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 7 0 0"));
        QCOMPARE(EditorFixture::text(popup.otherField("SFBox2f")), QStringLiteral("0 0 0 0"));
        QCOMPARE(popup.undoStack().count(), 1);
    }

    void movingToTheNextLineAppliesAnEditedOne()
    {
        Popup popup("SFBox3s");
        QVERIFY(popup.open());
        popup.type(0, "-32768");
        QTest::keyClick(popup.lines[0], Qt::Key_Tab);
        QVERIFY(popup.lines[1]->hasFocus());
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(popup.field("SFBox3s")), QStringLiteral("-32768 0 0 0 0 0"));
        QCOMPARE(linesShown(popup, "lineEdit"), QStringLiteral("-32768 0 0 0 0 0"));
        QTest::keyClick(popup.lines[1], Qt::Key_Tab);
        EditorFixture::settle();
        QCOMPARE(popup.undoStack().count(), 1);
    }

    void applyingWritesWhatTheGridShows()
    {
        Popup popup("SFBox2f");
        EditorFixture::write(popup.field("SFBox2f"), "0.12345678 0 1 1234567");
        QVERIFY(popup.open());
        popup.type(2, "2");
        QTest::keyClick(popup.lines[2], Qt::Key_Return);
        // The summary doesn't wait for the kernel's notice.
        QCOMPARE(linesShown(popup, "lineEdit"), QStringLiteral("0.123457 0 2 1234570"));
    }

    void anUnfinishedLineAppliesNothingAndCountsAsZero()
    {
        Popup popup("SFBox2f");
        EditorFixture::write(popup.field("SFBox2f"), "5 0 1 1");
        QVERIFY(popup.open());
        popup.type(0, "-");
        QTest::keyClick(popup.lines[0], Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(popup.lines[0]->text(), QStringLiteral("-"));
        QCOMPARE(popup.undoStack().count(), 0);
        popup.type(3, "9");
        QTest::keyClick(popup.lines[3], Qt::Key_Return);
        EditorFixture::settle();
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 0 1 9"));
    }

    void theSummaryTakesNothingFromThePerson()
    {
        Popup popup("SFBox2f");
        auto* const summary = popup.child<QLineEdit>("lineEdit");
        QTest::mouseClick(summary, Qt::LeftButton);
        QTest::keyClicks(&popup.shell().window(), QStringLiteral("77"));
        EditorFixture::settle();
        QVERIFY(!summary->isEnabled() && !summary->hasFocus());
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 0 0 0"));
        QCOMPARE(popup.undoStack().count(), 0);
    }

    void typing_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("taken");
        const auto row = [](int kind, const char* typed, const char* taken) {
            QTest::addRow("%d: %s", kind, typed)
                << kind << QString::fromLatin1(typed) << QString::fromLatin1(taken);
        };
        row(0, "any text", "any text");
        row(1, "-32768", "-32768");
        row(1, "327678", "32767");
        row(1, "1.5", "15");
        row(2, "-2147483648", "-2147483648");
        row(2, "21474836478", "2147483647");
        row(3, "-1.2345678e3", "-1.234567e3");
        row(3, "1,5", "15");
        row(4, "0.123456789012", "0.123456789012");
        row(4, "1,5", "15");
        row(5, "any text", "any text");
        row(-1, "any text", "any text");
    }
    void typing()
    {
        QFETCH(int, kind);
        QFETCH(QString, typed);
        QLineEdit line;
        setComponentValidator(kind, &line);
        QTest::keyClicks(&line, typed);
        QTEST(line.text(), "taken");
        // 0 takes the validator away, an unknown kind leaves it.
        const QValidator* const validator = line.validator();
        setComponentValidator(9, &line);
        QCOMPARE(line.validator(), validator);
        setComponentValidator(0, &line);
        QVERIFY(!line.validator());
    }
};

QTEST_MAIN(TestPopupEditors)
#include "test_popup_editors.moc"
