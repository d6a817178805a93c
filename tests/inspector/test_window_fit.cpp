// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "ElidedLabel.h"
#include "FieldListModel.h"
#include "InspectorFixture.h"
#include "PaneColumns.h"
#include "TextRows.h"
#include "WatchPanel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>

namespace {

class ResizeCounter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Resize;
        return false;
    }
    int count = 0;
};

} // namespace

/// The window fits, stands still, and comes back as it was left.
class TestWindowFit : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void theWindowFitsItsScreen()
    {
        const MainWindow& window = m_inspector->window;
        QVERIFY(window.screen()->availableGeometry().size().expandedTo(window.size())
            == window.screen()->availableGeometry().size());
        const QSize smallest = window.minimumSizeHint().expandedTo(window.minimumSize());
        QVERIFY(smallest.width() <= 683 && smallest.height() <= 384); // 1366x768, scaled by 2
        for (const QDockWidget* dock : window.findChildren<QDockWidget*>()) {
            if (!dock->isVisible())
                continue;
            QVERIFY(window.rect().contains(dock->geometry()));
            QVERIFY(dock->width() >= dock->minimumSizeHint().width());
        }
    }

    void aLargerScreenIsForgotten()
    {
        m_inspector->window.resize(3000, 2500);
        m_inspector->window.close();
        m_inspector.reset();
        m_inspector = std::make_unique<InspectorFixture>(*m_folder);
        theWindowFitsItsScreen();
    }

    /// What a column gives is taken from the first ones first.
    void columnsGiveWayInOrder_data()
    {
        QTest::addColumn<int>("room");
        QTest::addColumn<std::vector<int>>("widths");
        QTest::newRow("all fit") << 500 << std::vector { 120, 60, 120 };
        QTest::newRow("the first shrinks") << 350 << std::vector { 70, 60, 120 };
        QTest::newRow("the first goes") << 329 << std::vector { 0, 60, 120 };
        QTest::newRow("the second shrinks") << 275 << std::vector { 0, 55, 120 };
        QTest::newRow("the second goes") << 240 << std::vector { 0, 0, 120 };
        QTest::newRow("the last shrinks") << 200 << std::vector { 0, 0, 100 };
        QTest::newRow("the last stays") << 20 << std::vector { 0, 0, 50 };
    }
    void columnsGiveWayInOrder()
    {
        QFETCH(int, room);
        QTEST(PaneColumns::share(
                  room, 100, { { 120, 50, false }, { 60, 50, false }, { 120, 50, true } }),
            "widths");
    }

    void theListKeepsTheValue()
    {
        const QHeaderView& header = *m_inspector->view(u"fieldList"_s)->header();
        QList<int> hidden;
        connect(&header, &QHeaderView::sectionResized, this, [&](int column, int, int width) {
            if (width == 0)
                hidden.append(column);
        });
        QDockWidget* const scene = m_inspector->dock(u"sceneDock"_s);
        m_inspector->window.resize(1100, 700);
        for (int width = 250; width < 900; width += 20)
            resize({ scene }, { width });
        QCOMPARE(hidden, QList<int>({ FieldListModel::TypeColumn, FieldListModel::IgnoredColumn }));
        QVERIFY(header.sectionSize(FieldListModel::ValueColumn) > 0);
        resize({ scene }, { 200 });
        QTRY_VERIFY(!header.isSectionHidden(FieldListModel::TypeColumn));
    }

    void anotherNodeLeavesThePanesStill()
    {
        m_inspector->view(u"sceneTree"_s)->expandAll();
        ResizeCounter resizes;
        m_inspector->window.centralWidget()->installEventFilter(&resizes);
        QString before;
        // All kinds of editors, tall and wide ones.
        for (const char* node : { "Front view", "Room", "Oak", "Corners", "Board", "Opening hours",
                 "Arrow", "Fan turns", "Dust in the air" }) {
            m_inspector->clickNode(QLatin1String(node));
            const QString now = places();
            QVERIFY(before.isEmpty() || now == before);
            before = now;
            QVERIFY(m_inspector->dock(u"Field Editor"_s)->isVisible());
        }
        QCOMPARE(resizes.count, 0); // not even for a moment
    }

    void aNodeIsChosenWithAField_data()
    {
        addTextRows({ { "Desk lamp.color", "Window light", "color" },
            { "Desk lamp.color", "Front view", "description" }, { "Desk lamp.on", "Room", "on" } });
    }
    void aNodeIsChosenWithAField()
    {
        const auto [former, node, field] = textRow<3>();
        CrvServices* const services = CrvServices::getInstance();
        services->selectField(m_inspector->field(former));
        m_inspector->clickNode(node);
        QCOMPARE(services->getSelectedField(), m_inspector->field(node + u'.' + field));
        QVERIFY(!m_inspector->window.isWindowModified());
        // The program's own choice of a node is that of a node alone.
        services->selectNode(m_inspector->field(former)->getContainer());
        QVERIFY(!services->getSelectedField());
    }

    void aClosedEditorStaysClosed()
    {
        QDockWidget* const dock = m_inspector->dock(u"Field Editor"_s);
        QTest::mouseClick(dock->findChild<QAbstractButton*>(u"closeButton"_s), Qt::LeftButton);
        m_inspector->clickNode(u"Desk lamp"_s);
        QVERIFY(dock->isHidden());
        QVERIFY(!m_inspector->entries(u"viewMenu"_s).contains(u"Field Editor*"_s));
        clickRow(m_inspector->view(u"fieldList"_s), u"color"_s);
        QVERIFY(dock->isVisible());
    }

    void theEditorSaysWhatItEdits()
    {
        m_inspector->clickField(u"Desk lamp"_s, u"intensity"_s);
        QDockWidget* const dock = m_inspector->dock(u"Field Editor"_s);
        const auto* const heading = dock->findChild<ElidedLabel*>(u"editorHeadingText"_s);
        QCOMPARE(heading->wholeText(), u"Field Editor  \u2013  Desk lamp.intensity"_s);
        QCOMPARE(dock->windowTitle(), u"Field Editor"_s);
        m_inspector->clickNode(u"Table place"_s);
        QCOMPARE(m_inspector->dock(u"Node Editor"_s)
                     ->findChild<ElidedLabel*>(u"editorHeadingText"_s)
                     ->wholeText(),
            u"Node Editor  \u2013  Table place"_s);
    }

    /// A single value stands below the title, also in a dock as tall as the window.
    void anEditorStandsAtTheTop()
    {
        m_inspector->dock(u"Scene View"_s)->close();
        for (const char* field : { "intensity", "color", "location", "on" }) {
            m_inspector->clickField(u"Desk lamp"_s, QLatin1String(field));
            const QWidget* const frame = m_inspector->dock(u"Field Editor"_s)->widget();
            QVERIFY(frame->height() > 300);
            for (const QWidget* input : frame->findChildren<QWidget*>()) {
                if (input->isVisible() && !input->isWindow())
                    QVERIFY(input->mapTo(frame, QPoint(0, input->height())).y() < 60);
            }
        }
    }

    void theNextStartComesBackAsItWas()
    {
        const auto* const box = m_inspector->window.findChild<QComboBox*>(u"m_comboBox"_s);
        m_inspector->choose(u"profileMenu"_s, u"Fields"_s);
        QCOMPARE(box->currentText(), u"Fields"_s); // chosen in one place, shown in all
        m_inspector->window.resize(780, 600);
        resize({ m_inspector->dock(u"sceneDock"_s), m_inspector->dock(u"Field Editor"_s) },
            { 140, 380 });
        QHeaderView* header = m_inspector->view(u"fieldList"_s)->header();
        const int place = header->sectionViewportPosition(FieldListModel::NameColumn)
            + header->sectionSize(FieldListModel::NameColumn) - 1;
        const QPoint edge(place, header->height() / 2);
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(header->viewport(), edge - QPoint(15, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge - QPoint(15, 0));
        const int width = header->sectionSize(FieldListModel::NameColumn);
        const QString before = places();
        m_inspector->window.close();
        m_inspector.reset();

        m_inspector = std::make_unique<InspectorFixture>(*m_folder, QString());
        QCOMPARE(m_inspector->entries(u"profileMenu"_s), u"Everything, Fields*, Console"_s);
        QTRY_COMPARE(places(), before);
        header = m_inspector->view(u"fieldList"_s)->header();
        QCOMPARE(header->sectionSize(FieldListModel::NameColumn), width);
    }

    /// Without a warning of the toolkit's, which wants to know nothing of the size of such docks.
    void floatingDocksComeBack()
    {
        for (const QString& name : { u"Console"_s, u"sceneDock"_s })
            m_inspector->dock(name)->setFloating(true);
        m_inspector->window.close();
        m_inspector.reset();
        m_inspector = std::make_unique<InspectorFixture>(*m_folder);
        m_inspector->clickField(u"Desk lamp"_s, u"on"_s);
        for (const QString& name : { u"Console"_s, u"sceneDock"_s })
            QVERIFY(m_inspector->dock(name)->isFloating());
    }

    void theSplitterComesBack()
    {
        const auto splitter = [this] {
            m_inspector->dock(u"watchDock"_s)->show();
            m_inspector->window.findChild<WatchPanel*>()->watch(
                m_inspector->field(u"Desk lamp.intensity"_s), 0);
            QCoreApplication::processEvents();
            return m_inspector->window.findChild<QSplitter*>(u"watchSplitter"_s);
        };
        const QList<int> fresh = splitter()->sizes();
        QWidget* const handle = splitter()->handle(1);
        const QPoint start = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, start);
        QTest::mouseMove(handle, start - QPoint(40, 40));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, start - QPoint(40, 40));
        const QList<int> sizes = splitter()->sizes();
        QVERIFY(sizes != fresh);
        m_inspector->window.close();
        m_inspector.reset();
        m_inspector = std::make_unique<InspectorFixture>(*m_folder);
        QTRY_COMPARE(splitter()->sizes(), sizes);
    }

private:
    void resize(const QList<QDockWidget*>& docks, const QList<int>& widths)
    {
        m_inspector->window.resizeDocks(docks, widths, Qt::Horizontal);
        QCoreApplication::processEvents();
    }
    /// Of all panes that can be seen.
    QString places() const
    {
        QString places;
        const MainWindow& window = m_inspector->window;
        for (const QWidget* pane : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const bool isPane
                = qobject_cast<const QDockWidget*>(pane) || pane == window.centralWidget();
            if (!isPane || !pane->isVisible())
                continue;
            const QRect rect = pane->geometry();
            places += u"%1 %2,%3 %4x%5; "_s.arg(pane->objectName())
                          .arg(rect.x())
                          .arg(rect.y())
                          .arg(rect.width())
                          .arg(rect.height());
        }
        return places;
    }
};

QTEST_MAIN(TestWindowFit)
#include "test_window_fit.moc"
