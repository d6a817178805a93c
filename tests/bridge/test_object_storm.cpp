// SPDX-License-Identifier: BSD-3-Clause
#include "CrvInspector.h"
#include "CrvObjects.h"
#include "CrvStrings.h"
#include "KnGroup.h"
#include "StormUnit.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTest>
#include <QThread>
#include <QTreeView>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int crowd = 2000;

int numberFrom(const char* variable, int otherwise)
{
    bool ok = false;
    const int number = qEnvironmentVariableIntValue(variable, &ok);
    return ok ? number : otherwise;
}

/// A tree of objects to which something happens in each turn of the event loop, also of those that
/// run inside of setters and menus.
class Storm : public QObject {
    Q_OBJECT
public:
    explicit Storm(QRandomGenerator& random)
        : m_random(random)
    {
        m_root.setObjectName(u"root"_s);
        m_nomad = std::make_unique<StormUnit>(m_deeds, nullptr);
        m_nomad->setObjectName(u"nomad"_s);
        new StormUnit(m_deeds, m_nomad.get());
        m_deeds.destroyAny = [this] { delete any(); };
        m_deeds.isUnlucky = [this] { return m_random.bounded(50) == 0; };
        m_thread.setObjectName(u"far"_s);
        m_thread.start();
        for (int i = 0; i < crowd; ++i)
            create();
    }
    ~Storm() override
    {
        bringHome();
        m_thread.quit();
        m_thread.wait();
    }

    const StormUnit::Deeds& deeds() const { return m_deeds; }
    QObject& root() { return m_root; }
    /// Lives in another thread at times.
    QObject& nomad() { return *m_nomad; }
    void setBlowing(bool blowing)
    {
        if (blowing)
            m_timer.start(0, this);
        else
            m_timer.stop();
    }
    void bringHome()
    {
        if (m_nomad->thread() == thread())
            return;
        QMetaObject::invokeMethod(
            m_nomad.get(), [this] { m_nomad->moveToThread(thread()); },
            Qt::BlockingQueuedConnection);
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        for (int i = 0; i < 5; ++i)
            act();
    }

private:
    /// Any of those that live; null if it is none.
    StormUnit* any()
    {
        m_units.removeIf([](const auto& unit) { return !unit; });
        return m_units.isEmpty() ? nullptr : m_units[m_random.bounded(m_units.size())].get();
    }
    void create()
    {
        QObject* const parent = m_random.bounded(20) == 0 ? nullptr : any();
        auto* const unit = new StormUnit(m_deeds, parent ? parent : &m_root);
        unit->setObjectName(QString::number(m_random.bounded(100)));
        unit->m_next = any();
        m_units += unit;
    }
    void move(StormUnit* unit)
    {
        QObject* const parent = any();
        for (const QObject* above = parent; above; above = above->parent()) {
            if (above == unit)
                return;
        }
        unit->setParent(m_random.bounded(3) == 0 ? &m_root : parent);
    }
    void travel()
    {
        if (m_nomad->thread() == thread())
            m_nomad->moveToThread(&m_thread);
        else
            bringHome();
    }
    /// The victim stands outside of the way from the root to the unit.
    void layTrap(StormUnit* unit)
    {
        StormUnit* const victim = any();
        for (const QObject* above = unit; above; above = above->parent()) {
            if (above == victim)
                return;
        }
        unit->m_victim = victim;
    }
    void act()
    {
        static const QVariant loads[]
            = { 1, u"text"_s, QColor(Qt::blue), QVariant(), QRect(1, 2, 3, 4),
                  QStringList { u"a"_s }, QVariantMap { { u"a"_s, 1 } }, QVariantList { 1, 2.5 } };
        constexpr auto loadCount = static_cast<int>(std::size(loads));
        StormUnit* const unit = any();
        if (!unit || m_units.size() < crowd / 2) {
            create();
            return;
        }
        switch (m_random.bounded(16)) {
        case 0:
            if (unit->children().size() < 50)
                delete unit;
            break;
        case 1:
        case 2:
        case 3:
            if (m_units.size() < crowd * 2)
                create();
            break;
        case 4:
            move(unit);
            break;
        case 5:
            unit->setObjectName(QString::number(m_random.bounded(100)));
            break;
        case 6:
            unit->setProperty(QByteArray("dynamic" + QByteArray::number(m_random.bounded(9))),
                loads[m_random.bounded(loadCount)]);
            break;
        case 7:
            unit->m_load = loads[m_random.bounded(loadCount)];
            Q_EMIT unit->loadChanged();
            break;
        case 8:
            unit->m_paint = m_random.bounded(2) == 0 ? QColor() : QColor(Qt::green);
            break;
        case 9:
            unit->m_steps.resize(m_random.bounded(20));
            Q_EMIT unit->stepsChanged();
            break;
        case 10:
            layTrap(unit);
            break;
        case 11:
            if (m_random.bounded(20) == 0)
                travel();
            break;
        case 12:
            crvHideObject(unit);
            break;
        default:
            unit->setSpeed(m_random.bounded(100));
            unit->m_level = m_random.bounded(1.0);
            break;
        }
    }

    QRandomGenerator& m_random;
    StormUnit::Deeds m_deeds;
    QObject m_root;
    QThread m_thread;
    std::unique_ptr<StormUnit> m_nomad;
    QList<QPointer<StormUnit>> m_units;
    QBasicTimer m_timer;
};

/// Somebody who clicks and types into the inspector's window without sense.
class Person {
public:
    Person(QWidget* window, QRandomGenerator& random)
        : m_window(window)
        , m_random(random)
    {
    }

    void act()
    {
        switch (m_random.bounded(16)) {
        case 0:
        case 1:
        case 2:
            clickIn(u"sceneTree"_s);
            break;
        case 3:
        case 4:
            clickIn(u"fieldList"_s);
            break;
        case 5:
            QTest::keyClick(
                view(u"sceneTree"_s), m_random.bounded(3) ? Qt::Key_Right : Qt::Key_Down);
            break;
        case 6:
            QTest::keySequence(
                m_window, m_random.bounded(3) ? QKeySequence::Undo : QKeySequence::Redo);
            break;
        case 7:
            openMenu(m_random.bounded(2) ? u"sceneTree"_s : u"fieldList"_s);
            break;
        case 8:
            typeInList();
            break;
        case 9:
        case 10:
            editDangerousField();
            break;
        default:
            editInDock();
            break;
        }
    }

private:
    QTreeView* view(const QString& name) const { return m_window->findChild<QTreeView*>(name); }
    QPoint anyRow(const QTreeView* tree)
    {
        const int height = qMax(1, tree->viewport()->height());
        return { 40 + m_random.bounded(20), m_random.bounded(height) };
    }
    void clickIn(const QString& name)
    {
        QTreeView* const tree = view(name);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, anyRow(tree));
    }
    void openMenu(const QString& name)
    {
        QTreeView* const tree = view(name);
        const QPoint place = anyRow(tree);
        QContextMenuEvent event(
            QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(tree->viewport(), &event);
        QTest::qWait(15);
    }
    void editDangerousField()
    {
        const QString names[] = { u"fuse"_s, u"mine"_s, u"loop"_s, u"trap"_s };
        QTreeView* const list = view(u"fieldList"_s);
        const QModelIndex top = list->model()->index(0, 0);
        const QString name = names[m_random.bounded(4)];
        const QModelIndex row = list->model()->match(top, Qt::DisplayRole, name).value(0);
        if (!row.isValid())
            return;
        list->scrollTo(row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
        QTest::qWait(2);
        editInDock();
    }
    void typeInList()
    {
        QTreeView* const list = view(u"fieldList"_s);
        clickIn(u"fieldList"_s);
        QTest::keyClick(list, Qt::Key_F2);
        QTest::qWait(2);
        typeInto(list->viewport()->findChild<QLineEdit*>());
    }
    void typeInto(QPointer<QLineEdit> line)
    {
        if (!line || !line->isVisible() || !line->isEnabled())
            return;
        line->selectAll();
        for (const char key : "12.5") {
            if (line && key)
                QTest::keyClick(line.data(), key);
        }
        QTest::qWait(2);
        if (line && m_random.bounded(4) != 0)
            QTest::keyClick(line.data(), m_random.bounded(4) ? Qt::Key_Return : Qt::Key_Escape);
    }
    void drag(QPointer<QWidget> handle)
    {
        const auto somewhere = [&] {
            return QPoint(m_random.bounded(qMax(1, handle->width())), handle->height() / 2);
        };
        QTest::mousePress(handle.data(), Qt::LeftButton, {}, somewhere());
        for (int i = 0; i < 5 && handle && handle->isVisible(); ++i) {
            QTest::mouseMove(handle.data(), somewhere());
            QTest::qWait(2);
        }
        if (handle)
            QTest::mouseRelease(handle.data(), Qt::LeftButton, {}, somewhere());
    }
    void editInDock()
    {
        auto* const dock = m_window->findChild<QWidget*>(u"Field Editor"_s);
        if (!dock)
            return;
        QWidgetList inputs = dock->findChildren<QWidget*>();
        inputs.removeIf([](const QWidget* widget) {
            const bool isInput = qobject_cast<const QLineEdit*>(widget)
                || qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QComboBox*>(widget)
                || qobject_cast<const QAbstractSlider*>(widget) || widget->inherits("SliderScale")
                || widget->inherits("QTableView");
            return !isInput || !widget->isVisible() || !widget->isEnabled();
        });
        if (inputs.isEmpty())
            return;
        QWidget* const input = inputs[m_random.bounded(inputs.size())];
        if (auto* const line = qobject_cast<QLineEdit*>(input)) {
            QTest::mouseClick(line, Qt::LeftButton);
            typeInto(dock->isAncestorOf(QApplication::focusWidget())
                    ? qobject_cast<QLineEdit*>(QApplication::focusWidget())
                    : nullptr);
        } else if (qobject_cast<QComboBox*>(input)) {
            QTest::keyClick(input, Qt::Key_Down);
        } else if (qobject_cast<QCheckBox*>(input)) {
            QTest::mouseClick(input, Qt::LeftButton, {}, QPoint(8, input->height() / 2));
        } else {
            drag(input);
        }
    }

    QWidget* const m_window;
    QRandomGenerator& m_random;
};

void closePopupsAndDialogs()
{
    if (QWidget* const popup = QApplication::activePopupWidget())
        QTest::keyClick(popup, Qt::Key_Escape);
    else if (QWidget* const dialog = QApplication::activeModalWidget())
        QTest::keyClick(dialog, Qt::Key_Escape);
}

QStringList names(const QObject& parent)
{
    QStringList names;
    for (const QObject* child : parent.children())
        names += child->objectName();
    return names;
}

QStringList names(const KnFieldContainer& node)
{
    QStringList names;
    const auto& group = dynamic_cast<const KnGroup&>(node);
    for (int i = 0; i < group.getNumChildren(); ++i)
        names += toQString(group.getChild(i)->getName());
    return names;
}

} // namespace

/// The inspector's own window on objects that come, go and change at random, while somebody clicks
/// and types at random. CORVANE_STORM_STEPS says how long, CORVANE_STORM_SEED repeats a run.
class TestObjectStorm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    }

    void theInspectorOutlivesEverything()
    {
        const auto seed = static_cast<quint32>(numberFrom(
            "CORVANE_STORM_SEED", static_cast<int>(QRandomGenerator::global()->generate() >> 1)));
        qInfo("CORVANE_STORM_SEED=%u", seed);
        QRandomGenerator random(seed);
        Storm storm(random);
        const KnNodePtr root(crvObjectNode(&storm.root()));
        {
            CrvInspector inspector;
            inspector.setRoots({ root.get(), crvObjectNode(&storm.nomad()) });
            inspector.show();
            QVERIFY(QTest::qWaitForWindowActive(inspector.window()));
            // What runs an event loop of its own would never end.
            QTimer closer;
            connect(&closer, &QTimer::timeout, &closer, &closePopupsAndDialogs);
            closer.start(10);
            Person person(inspector.window(), random);
            storm.setBlowing(true);
            const int steps = numberFrom("CORVANE_STORM_STEPS", 400);
            for (int step = 0; step < steps; ++step) {
                person.act();
                QTest::qWait(1);
                // Whatever is open or being typed then.
                if (random.bounded(50) == 0) {
                    inspector.close();
                    inspector.show();
                    QVERIFY(QTest::qWaitForWindowActive(inspector.window()));
                }
            }
            storm.setBlowing(false);
            storm.bringHome();
            qInfo("%d edits and %d traps", storm.deeds().writes, storm.deeds().traps);
            QVERIFY(storm.deeds().writes > 0);
            QCoreApplication::processEvents();
        }
        // Hidden ones don't show, so the names that do are some of those that are there.
        QStringList there = names(storm.root());
        for (const QString& name : names(*root.get()))
            QVERIFY2(there.removeOne(name), qPrintable(name));
    }
};

QTEST_MAIN(TestObjectStorm)
#include "test_object_storm.moc"
