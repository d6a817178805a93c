// SPDX-License-Identifier: BSD-3-Clause
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
        QVERIFY(!popup.child<QLineEdit>("lineEdit")->isEnabled());
        QVERIFY(popup.open());
        clickThroughWindow(popup.frame);
        QVERIFY(popup.frame->isVisible());
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
            QTest::keyClick(popup.shell().window().windowHandle(), Qt::Key_Escape);
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
            for (CrvExtension* extension : popup.plugin().getExtensions()) {
                if (auto* const dock = qobject_cast<CrvFieldEditorDockWin*>(extension)) {
                    dock->hide();
                    QVERIFY(!popup.frame->isVisible());
                    dock->show();
                }
            }
        }
        EditorFixture::settle();
        QVERIFY(!popup.frame->isVisible());
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(popup.open());
        QCOMPARE(popup.undoStack().count(), 0);
    }

    void aSelectionLeavesTheLineOfTheFormerField()
    {
        Popup popup("SFBox2f");
        QVERIFY(popup.open());
        clickThroughWindow(popup.lines[1]);
        QTest::keyClicks(popup.lines[1], QStringLiteral("7"));
        popup.select(popup.otherField("SFBox2f"));
        QCOMPARE(EditorFixture::text(popup.field("SFBox2f")), QStringLiteral("0 70 0 0"));
        QCOMPARE(EditorFixture::text(popup.otherField("SFBox2f")), QStringLiteral("0 0 0 0"));
        QCOMPARE(popup.undoStack().count(), 1);
    }
};

QTEST_MAIN(TestPopupEditors)
#include "test_popup_editors.moc"
