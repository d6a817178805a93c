// SPDX-License-Identifier: BSD-3-Clause
#include "CrvServices.h"
#include "FieldNumbers.h"
#include "InspectorFixture.h"
#include "KnGroup.h"
#include "KnPointLight.h"
#include "KnSensorQueue.h"
#include "TextRows.h"
#include "WatchPanel.h"
#include "WatchPlot.h"
#include "WatchScale.h"
#include "WatchedValue.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QPixmapCache>
#include <QScopeGuard>
#include <QUndoStack>
#include <QWheelEvent>

/// Numbers of fields over time.
class TestWatch : public InspectorTest {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        InspectorTest::init();
        m_panel = m_inspector->window.findChild<WatchPanel*>();
        m_panel->list().clock().setSource([this] { return m_now; });
        new QAbstractItemModelTester(&m_panel->list(), m_panel);
        m_lamp = static_cast<KnPointLight*>(
            m_inspector->field(u"Desk lamp.intensity"_s)->getContainer());
    }
    void aFullRingDropsTheOldest()
    {
        WatchSeries series;
        constexpr int extra = 3;
        for (int i = 0; i < int(WatchSeries::capacity) + extra; ++i)
            series.add({ double(i), double(-i) });
        QCOMPARE(series.size(), WatchSeries::capacity);
        QCOMPARE(series[0].time, double(extra));
        QVERIFY(!series.at(extra - 0.5));
        QCOMPARE(series.at(extra + 1.5)->value, -(extra + 1.0));
        QCOMPARE(series.latest()->value, -(WatchSeries::capacity + extra - 1.0));
    }

    void aSpikeIsInItsPixelAndAGapInNone()
    {
        WatchSeries series;
        constexpr int samples = 3600;
        for (int i = 0; i < samples; ++i) {
            const bool gap = i >= 1830 && i < 2010;
            series.add({ i / 60.0, i == 1234 ? 100 : i % 2 + 1.0,
                gap ? WatchSample::Kind::Gap : WatchSample::Kind::Written });
        }
        std::vector<WatchRange> columns(100);
        series.columns(0, 100, 60, columns);
        for (int i = 0; i < 100; ++i) {
            const bool empty = (i > 30 && i < 33) || i > 60;
            QCOMPARE(columns[std::size_t(i)].isEmpty(), empty);
            if (!empty && i < 60)
                QCOMPARE(columns[std::size_t(i)], (WatchRange { 1, i == 20 ? 100.0 : 2.0 }));
        }
        // A level piece between two samples reaches as far as the later one.
        columns.resize(6000);
        series.columns(0, 60, 60, columns);
        QCOMPARE(columns[1], (WatchRange { 1, 2 }));
        QCOMPARE(columns[2], (WatchRange { 2, 2 }));
    }

    void linesOfTheGridAreRound_data()
    {
        // From, to, how many at most, and what stands at the lines.
        addTextRows({ { "0.3", "9.7", "5", "2 4 6 8" }, { "-1", "1", "4", "-1.0 -0.5 0.0 0.5 1.0" },
            { "1e7", "4e7", "3", "1e+07 2e+07 3e+07 4e+07" }, { "5", "5", "4", "" } });
    }
    void linesOfTheGridAreRound()
    {
        const auto [from, to, most, lines] = textRow<4>();
        QStringList labels;
        for (const WatchTick& tick : roundTicks(from.toDouble(), to.toDouble(), most.toInt()))
            labels += tick.label;
        QCOMPARE(labels.join(u' '), lines);
    }

    void aFieldFallsIntoNumbers_data()
    {
        addTextRows({ { "SFBool", "TRUE", "1" }, { "SFFloat", "0.1", "0.1" },
            { "SFDouble", "0.1", "0.1" }, { "SFUInt32", "255", "0xff" }, { "SFTime", "1.5", "1.5" },
            { "SFEnum", "7", "7" }, { "SFBitMask", "5", "5" },
            { "SFColor", "1 2 3", "r=1 g=2 b=3" }, { "SFVec2s", "-1 2", "x=-1 y=2" },
            { "SFPlane", "1 0 0 2", "x=1 y=0 z=0 distance=2" },
            { "SFRotation", "1 0 0 2", "x=1 y=0 z=0 radians=2" },
            { "SFBox2f", "1 2 3 4", "min.x=1 min.y=2 max.x=3 max.y=4" },
            { "SFMatrix", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16",
                "[0][0]=1 [0][1]=2 [0][2]=3 [0][3]=4 [1][0]=5 [1][1]=6 [1][2]=7 [1][3]=8 "
                "[2][0]=9 [2][1]=10 [2][2]=11 [2][3]=12 [3][0]=13 [3][1]=14 [3][2]=15 [3][3]=16" },
            { "MFVec2f", "[ 1 2, 3 4, 5 6 ]", "count=3" }, { "SFString", "1", "" },
            { "SFFilePathString", "1", "" }, { "SFName", "1", "" }, { "SFImage", "", "" } });
    }
    void aFieldFallsIntoNumbers()
    {
        const auto [type, text, expected] = textRow<3>();
        const std::unique_ptr<KnTypedObject> object(
            KnType::fromName(KbName(toKbString(type))).createInstance());
        auto& field = dynamic_cast<KnField&>(*object);
        QVERIFY(text.isEmpty() || field.set(toKbString(text)));
        QStringList shown;
        const FieldNumbers* const numbers = FieldNumbers::of(field);
        for (int i = 0; numbers && i < numbers->count; ++i) {
            const QString name = numbers->name(i);
            shown += (name.isEmpty() ? name : name + u'=')
                + QString::fromStdString(numbers->text(numbers->read(field, i)));
        }
        QCOMPARE(shown.join(u' '), expected);
    }

    void isAddedByMenu_data() { addTextRows({ { "right click" }, { "Menu key" } }); }
    void isAddedByMenu()
    {
        const bool byKey = textRow<1>()[0] == u"Menu key";
        QVERIFY(m_inspector->dock(u"watchDock"_s)->isHidden());
        openMenu(u"Desk lamp"_s, u"intensity"_s, byKey);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_W);
        QVERIFY(m_inspector->dock(u"watchDock"_s)->isVisible());
        QTRY_COMPARE(row(0), u"Desk lamp.intensity 0.65 0.65 0.65"_s);
        // From the submenu: "All" is its first entry.
        openMenu(u"Desk lamp"_s, u"location"_s, byKey);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_W);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
        QTRY_COMPARE(row(3), u"Desk lamp.location.z 0.4 0.4 0.4"_s);

        m_now += 1;
        m_lamp->intensity.setValue(0.1F);
        QTRY_COMPARE(row(0), u"Desk lamp.intensity 0.1 0.1 0.65"_s);
        // A second time selects the row, and Delete takes it away.
        openMenu(u"Desk lamp"_s, u"intensity"_s, byKey);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_W);
        QCOMPARE(m_panel->list().rowCount(), 4);
        m_inspector->view(u"watchTable"_s)->setFocus();
        m_inspector->press(Qt::Key_Delete);
        QTRY_COMPARE(row(0), u"Desk lamp.location.x 0.6 0.6 0.6"_s);
        openMenu(u"Front view"_s, u"description"_s, byKey);
        auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(!popup->actions().constFirst()->isEnabled());
        popup->close();
    }

    void isAddedByDragging()
    {
        m_inspector->dock(u"watchDock"_s)->show();
        QVERIFY(m_panel->findChild<QWidget*>(u"watchHint"_s)->isVisible());
        m_inspector->clickField(u"Desk lamp"_s, u"location"_s);
        auto* const list = m_inspector->view(u"fieldList"_s);
        const QPoint start = list->visualRect(list->currentIndex()).center();
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, start);
        QTest::mouseMove(list->viewport(), QPoint(start.x(), 1));
        // The offscreen platform carries nothing, so the rest of the way is gone by hand.
        const auto* const drag = list->findChild<QDrag*>();
        QVERIFY(drag);
        const QPoint end = m_panel->rect().center();
        QDragEnterEvent enter(end, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
        QApplication::sendEvent(m_panel, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(end, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, {});
        QApplication::sendEvent(m_panel, &drop);
        QCOMPARE(m_panel->list().rowCount(), 3);
        QVERIFY(m_panel->list().value(0).color() != m_panel->list().value(1).color());
        QCOMPARE(fieldName(*CrvServices::getInstance()->getSelectedField()), u"location"_s);
    }

    void copiesAsCsv()
    {
        m_lamp->setName(KbName("a, b"));
        watch(u"intensity"_s);
        m_lamp->setName(KbName("a \"b\""));
        watch(u"on"_s);
        m_now += 0.5;
        m_lamp->intensity.setValue(0.1F);
        m_lamp->on.setValue(true);
        runSensors();
        m_now += 60;
        m_lamp->on.setValue(false);
        m_lamp->intensity.setValue(0.1F); // no new value
        runSensors();
        m_inspector->view(u"watchTable"_s)->setFocus();
        m_inspector->press(QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(),
            u"time,\"a, b.intensity\",\"a \"\"b\"\".on\"\n"
            "0.000000,0.65,0\n0.500000,0.1,1\n60.500000,,0\n"_s);
    }

    void theRulerShowsValuesOfItsTime()
    {
        watch(u"intensity"_s);
        for (int i = 1; i <= 60; ++i) {
            m_now += 1;
            m_lamp->intensity.setValue(float(i));
            runSensors();
        }
        auto* const plot = m_panel->findChild<WatchPlot*>();
        QTRY_COMPARE(plot->view().to(), 60.0);
        // The ruler comes at the right edge; a pixel is less than the second between two samples.
        QTest::keyClick(plot, Qt::Key_Right);
        QTRY_COMPARE(row(0), u"Desk lamp.intensity 60 0.65 60"_s);
        QTest::keyClick(plot, Qt::Key_Left);
        QTRY_COMPARE(row(0), u"Desk lamp.intensity 59 0.65 60"_s);
        QTest::keyClick(plot, Qt::Key_Escape);
        QVERIFY(!plot->ruler());

        const QPoint middle = plot->rect().center();
        QTest::mouseMove(
            m_inspector->window.windowHandle(), plot->mapTo(&m_inspector->window, middle));
        QTRY_VERIFY(plot->ruler());
        const double time = *plot->ruler();
        QVERIFY(time > 20 && time < 40);
        QCOMPARE(row(0).section(u' ', 2, 2), QString::number(std::floor(time)));
        // The wheel leaves the time below the pointer where it is.
        QWheelEvent wheel(middle, plot->mapToGlobal(middle), {}, QPoint(0, 120), {}, {},
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(plot, &wheel);
        QCOMPARE(plot->view().span(), 48.0);
        QVERIFY(std::abs(*plot->ruler() - time) < 1e-9 && !plot->view().isLive());
        m_now += 1;
        m_lamp->intensity.setValue(1000);
        runSensors();
        const double to = plot->view().to();
        QTRY_COMPARE(plot->view().end(), 61.0);
        QCOMPARE(plot->view().to(), to);
        // To the left for later times, and no further than what is stored.
        QTest::mousePress(plot, Qt::LeftButton, {}, middle);
        QTest::mouseMove(plot, middle - QPoint(5, 0));
        QVERIFY(plot->view().to() > to && plot->view().to() < 61);
        QTest::mouseMove(plot, middle - QPoint(middle.x(), 0));
        QTest::mouseRelease(plot, Qt::LeftButton, {}, middle);
        QCOMPARE(plot->view().to(), 61.0);
        QTest::keyClick(plot, Qt::Key_Home);
        QCOMPARE(plot->view().from(), 0.0);
        QTest::keyClick(plot, Qt::Key_End);
        QVERIFY(plot->view().isLive());
        QCOMPARE(plot->view().from(), 1.0);
        QTest::keyClick(plot, Qt::Key_Left, Qt::ControlModifier);
        QVERIFY(!plot->view().isLive());
        QTest::mouseDClick(plot, Qt::LeftButton, {}, middle);
        QVERIFY(plot->view().isLive());
        QTest::keyClick(plot, Qt::Key_Plus);
        QCOMPARE(plot->view().span(), 48.0);
        QTest::keyClick(plot, Qt::Key_Minus);
        QCOMPARE(plot->view().span(), 60.0);
        QTest::mouseMove(m_inspector->window.windowHandle(), QPoint(1, 1));
        QTRY_VERIFY(!plot->ruler());
    }

    void onlyWhatAPersonEditedIsMarked()
    {
        for (const QString& name : { u"intensity"_s, u"on"_s })
            watch(name);
        const auto edit = [this](auto&& act) {
            m_now += 1;
            m_lamp->on.setValue(!m_lamp->on.getValue()); // by the program, in the same turn
            act();
            runSensors();
        };
        m_inspector->clickField(u"Desk lamp"_s, u"intensity"_s);
        edit([this] {
            auto* const line = m_inspector->inEditor<QLineEdit>();
            line->selectAll();
            QTest::keyClicks(line, u"0.25"_s);
            QTest::keyClick(line, Qt::Key_Return);
        });
        edit([this] { m_lamp->intensity.setValue(0.5F); });
        edit([] { CrvServices::getInstance()->getUndoStack()->undo(); });
        QCOMPARE(kinds(0), u"WEWE"_s);
        QCOMPARE(kinds(1), u"WWWW"_s);

        auto* const plot = m_panel->findChild<WatchPlot*>();
        const QImage apart = plot->grab().toImage();
        m_panel->findChild<QAction*>(u"watchCommonScale"_s)->trigger();
        QVERIFY(plot->grab().toImage() != apart);
    }

    void aDeadNodeLeavesItsCurve_data() { addTextRows({ { "while shown" }, { "while hidden" } }); }
    void aDeadNodeLeavesItsCurve()
    {
        const bool hidden = textRow<1>()[0] == u"while hidden";
        auto* const group
            = dynamic_cast<KnGroup*>(CrvServices::getInstance()->getRoots().front().get());
        auto* const light = new KnPointLight;
        light->setName(KbName("Spark"));
        group->addChild(light);
        QVERIFY(m_inspector->dock(u"watchDock"_s)->isHidden());
        m_inspector->dock(u"watchDock"_s)->show();
        m_panel->watch(&light->intensity, 0);
        watch(u"intensity"_s);
        QCOMPARE(light->getReferenceCount(), 1);
        m_now += 1;
        light->intensity.setValue(0.5F);
        runSensors();
        m_inspector->dock(u"watchDock"_s)->setHidden(hidden);
        m_now += 1;
        group->removeChild(light);
        m_inspector->dock(u"watchDock"_s)->show();
        QTRY_COMPARE(row(0), u"Spark.intensity (gone) 0.5 0.5 1"_s);
        QCOMPARE(kinds(0), u"WWG"_s);
        QCOMPARE(row(1).section(u' ', 0, 1), u"Desk lamp.intensity"_s);
    }

    void paintingKeepsTheProcessPixmaps_data()
    {
        addTextRows({ { "fieldList" }, { "watchTable" } });
    }
    // The cache is the process's, and what it put there must not make room for swatches.
    void paintingKeepsTheProcessPixmaps()
    {
        watch(u"intensity"_s);
        m_inspector->clickField(u"Desk lamp"_s, u"color"_s);
        QWidget* const painted = m_inspector->view(textRow<1>()[0])->viewport();
        painted->grab();
        const auto restore = qScopeGuard(
            [limit = QPixmapCache::cacheLimit()] { QPixmapCache::setCacheLimit(limit); });
        QPixmapCache::setCacheLimit(128); // kB
        QPixmap own(16, 16);
        own.fill(Qt::black);
        QVERIFY(QPixmapCache::insert(u"the process's own"_s, own));
        for (int i = 0; i < 200; ++i)
            painted->grab();
        QVERIFY(QPixmapCache::find(u"the process's own"_s, &own));
    }

    void whatIsNotSeenCostsNothing_data() { addTextRows({ { "hidden" }, { "paused" } }); }
    void whatIsNotSeenCostsNothing()
    {
        const bool paused = textRow<1>()[0] == u"paused";
        CrvServices* const services = CrvServices::getInstance();
        // The list of fields and the view have sensors, too.
        services->selectNode(nullptr);
        m_inspector->dock(u"Scene View"_s)->hide();
        const auto stop = [&](bool stopped) {
            if (paused)
                services->setPaused(stopped);
            else
                m_inspector->dock(u"watchDock"_s)->setHidden(stopped);
        };
        watch(u"intensity"_s);
        m_now += 1;
        stop(true);
        m_now += 1;
        m_lamp->intensity.setValue(0.5F);
        QVERIFY(paused || KnSensorQueue::getInstance().isEmpty());
        m_now += 1;
        stop(false);
        QCOMPARE(kinds(0), u"WGW"_s);
        const WatchSeries& series = m_panel->list().value(0).series();
        QVERIFY(!series.at(1.5));
        QCOMPARE(series.at(3)->value, 0.5);
    }

private:
    void runSensors() { KnSensorQueue::getInstance().process(); }

    /// Adds a field of the lamp.
    void watch(const QString& name)
    {
        m_inspector->dock(u"watchDock"_s)->show();
        m_panel->watch(m_lamp->getField(KbName(toKbString(name))), 0);
    }

    void openMenu(const QString& node, const QString& field, bool byKey)
    {
        // The offscreen platform doesn't do that when a popup has gone.
        m_inspector->window.activateWindow();
        m_inspector->clickField(node, field);
        auto* const list = m_inspector->view(u"fieldList"_s);
        const QPoint place = list->visualRect(list->currentIndex()).center();
        if (byKey) {
            // What the key makes of itself on a real window system.
            QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QApplication::sendEvent(m_inspector->window.windowHandle(), &key);
        } else {
            QTest::mouseClick(m_inspector->window.windowHandle(), Qt::RightButton, {},
                list->viewport()->mapTo(&m_inspector->window, place));
        }
        QTRY_VERIFY(QApplication::activePopupWidget());
    }

    /// The texts of a row with blanks between.
    QString row(int number) const
    {
        QStringList texts;
        for (int column = 0; column < WatchList::ColumnCount; ++column)
            texts += m_panel->list().index(number, column).data().toString();
        return texts.join(u' ');
    }

    /// The samples of a row: Written, Edited, Gap.
    QString kinds(int number) const
    {
        const WatchSeries& series = m_panel->list().value(number).series();
        QString kinds;
        for (std::size_t i = 0; i < series.size(); ++i)
            kinds += u"WEG"[int(series[i].kind)];
        return kinds;
    }

    double m_now = 100;
    WatchPanel* m_panel = nullptr; // of the inspector
    KnPointLight* m_lamp = nullptr; // of the scene
};

QTEST_MAIN(TestWatch)
#include "test_watch.moc"
