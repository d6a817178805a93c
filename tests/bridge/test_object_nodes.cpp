// SPDX-License-Identifier: BSD-3-Clause
#include "CrvNodeDetails.h"
#include "CrvObjectDetails.h"
#include "CrvObjects.h"
#include "CrvStrings.h"
#include "KnFieldSensor.h"
#include "KnGroup.h"
#include "KnMField.h"
#include "KnNameSensor.h"
#include "KnReadErrorCapture.h"
#include "KnSensorQueue.h"
#include "Machine.h"
#include "ObjectWatch.h"
#include "TextRows.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString text(const KnField* field)
{
    KbString text;
    field->get(text);
    return toQString(text);
}

/// A sensor that counts.
struct Watch {
    explicit Watch(KnField* field)
        : sensor([](void* count, KnSensor*) { ++*static_cast<int*>(count); }, &runs)
    {
        sensor.attach(field);
    }

    int runs = 0;
    KnFieldSensor sensor;
};

/// The names of the nodes below one, a level deeper in brackets. Looks at all of them.
QString treeText(const KnFieldContainer* node)
{
    const auto* const group = dynamic_cast<const KnGroup*>(node);
    QStringList children;
    for (int i = 0; i < group->getNumChildren(); ++i)
        children += treeText(group->getChild(i));
    const QString name = toQString(node->getName());
    return children.isEmpty() ? name : name + u'(' + children.join(u' ') + u')';
}

QString treeText(const QObject* object)
{
    QStringList children;
    for (const QObject* child : object->children())
        children += treeText(child);
    return children.isEmpty() ? object->objectName()
                              : object->objectName() + u'(' + children.join(u' ') + u')';
}

} // namespace

class TestObjectNodes : public QObject {
    Q_OBJECT

    void runSensors()
    {
        QCoreApplication::processEvents();
        KnSensorQueue::getInstance().process();
    }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
        m_machine = std::make_unique<Machine>();
        m_machine->setObjectName(u"mill"_s);
        m_node = KnNodePtr(crvObjectNode(m_machine.get()));
    }
    void cleanup()
    {
        m_node = KnNodePtr();
        m_machine.reset();
    }

    void aNodeHasClassNameAndProperties()
    {
        QCOMPARE(toQString(m_node->getName()), u"mill"_s);
        QCOMPARE(toQString(m_node->getObjectType().getName()), u"Machine"_s);
        QVERIFY(m_node->isOfType(KnType::fromName("QObject")));
        const KnFieldData* const table = m_node->getContainerFieldData();
        QCOMPARE(toQString(table->getName(0)), u"objectName"_s);
        QCOMPARE(table->getIndex("speed"), 1);
        Machine other;
        const KnNodePtr otherNode(crvObjectNode(&other));
        QCOMPARE(otherNode->getContainerFieldData(), table);
        QCOMPARE(crvObjectNode(m_machine.get()), m_node.get());
        QCOMPARE(crvNodeObject(m_node.get()), m_machine.get());
    }

    void lookingAndMarkingWriteNothing()
    {
        KnField* const speed = m_node->getField("speed");
        const Watch watch(speed);
        text(speed);
        speed->setIgnored(1);
        speed->touch();
        QVERIFY(speed->set("10")); // which it is already
        runSensors();
        QCOMPARE(m_machine->m_speedWrites, 0);
    }

    void aSignalBringsChangesOfEveryPropertyThatItAnnounces()
    {
        KnField* const speed = m_node->getField("speed");
        KnField* const heat = m_node->getField("heat");
        Watch watch(speed);
        Watch heatWatch(heat);
        runSensors();
        QCOMPARE(watch.runs + heatWatch.runs, 0); // the first look is no change
        m_machine->setSpeed(30);
        m_machine->setSpeed(31);
        runSensors();
        QCOMPARE(watch.runs, 1);
        QCOMPARE(heatWatch.runs, 1);
        QCOMPARE(text(heat), u"62"_s);
        Q_EMIT m_machine->speedChanged(); // nothing has
        runSensors();
        QCOMPARE(watch.runs, 1);
        heatWatch.sensor.detach();
        m_machine->setSpeed(32);
        runSensors();
        QCOMPARE(watch.runs, 2);
    }

    void whatHasNoSignalIsComparedWhileItIsWatched()
    {
        KnField* const polled = m_node->getField("polled");
        auto watch = std::make_unique<Watch>(polled);
        m_machine->m_polled = 5;
        QTRY_VERIFY((runSensors(), watch->runs > 0));
        QCOMPARE(text(polled), u"5"_s);
        watch.reset();
        m_machine->m_polledReads = 0;
        // Another field keeps the comparison going.
        Watch other(m_node->getField("serial"));
        m_machine->m_serial = 9;
        QTRY_VERIFY((runSensors(), other.runs > 0));
        QCOMPARE(m_machine->m_polledReads, 0);
    }

    void whatIsComparedLetsAnIdleProgramSleep()
    {
        const auto timers = [] {
            return QAbstractEventDispatcher::instance()
                ->registeredTimers(&ObjectWatch::getInstance())
                .size();
        };
        const Watch polled(m_node->getField("polled"));
        QCOMPARE(timers(), 1);
        constexpr int patience = 20; // comparisons
        for (int i = 0; i < patience && timers() > 0; ++i)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCOMPARE(timers(), 0);
        // Whatever happens may have changed something.
        QTimer::singleShot(0, m_machine.get(), [this] { m_machine->m_polled = 7; });
        QTRY_VERIFY((runSensors(), polled.runs > 0));
    }

    void aPictureThatStaysIsNoChange()
    {
        QPixmap picture(2, 2);
        picture.fill(Qt::red);
        QPushButton button(picture, QString());
        const KnNodePtr node(crvObjectNode(&button));
        Watch icon(node->getField("icon"));
        Watch other(node->getField("statusTip"));
        runSensors();
        button.setStatusTip(u"one"_s);
        QTRY_VERIFY((runSensors(), other.runs == 1)); // both were compared by now
        button.setStatusTip(u"two"_s);
        QTRY_VERIFY((runSensors(), other.runs == 2));
        QCOMPARE(icon.runs, 0);
    }

    void aResetGivesBackTheVeryValue()
    {
        KnField* const label = m_node->getField("label");
        m_machine->m_label = QString();
        const QString before = text(label);
        QVERIFY(label->resetToDefault());
        QCOMPARE(m_machine->m_label, u"new"_s);
        QVERIFY(label->set(toKbString(before)));
        QVERIFY(m_machine->m_label.isNull());
    }

    void aTypedWriteOfAReadOnlyPropertyIsTakenBack()
    {
        auto& heat = dynamic_cast<KnSFDouble&>(*m_node->getField("heat"));
        QVERIFY(heat.isReadOnly());
        const KnReadErrorCapture capture;
        heat.setValue(5);
        QCOMPARE(heat.getValue(), 20.0);
        QVERIFY(capture.getText().toUtf8().ends_with("read-only"));
    }

    void rowsThatStayAreLeftAlone()
    {
        struct Rows : KnFieldSensor {
            using KnFieldSensor::KnFieldSensor;
            void rowsReplaced(int start, int removed, int inserted) override
            {
                changes += u"%1-%2+%3 "_s.arg(start).arg(removed).arg(inserted);
            }
            QString changes;
        } rows(nullptr, nullptr);
        rows.attach(m_node->getField("steps"));
        m_machine->setSteps({ 1, 9, 8, 2, 3 });
        runSensors();
        m_machine->setSteps({ 1, 9, 3 });
        runSensors();
        m_machine->setSteps({ 1, 7, 3 });
        runSensors();
        QCOMPARE(rows.changes, u"1-0+2 1-2+2 2-2+0 1-1+1 "_s);
        QCOMPARE(text(rows.getAttachedField()), u"[ 1, 7, 3 ]"_s);
    }

    void aVariantOfAnotherTypeByNowIsntOverwritten()
    {
        KnField* const load = m_node->getField("load");
        QCOMPARE(text(load), u"2.5"_s);
        m_machine->m_load = u"full"_s;
        const KnReadErrorCapture capture;
        load->set("3");
        QCOMPARE(m_machine->m_load, QVariant(u"full"_s));
        QVERIFY(!capture.getText().isEmpty());
    }

    void anAxisIsKeptWhileTheAngleIsZero()
    {
        KnField* const turn = m_node->getField("turn");
        QVERIFY(turn->set("1 0 0 0"));
        QCOMPARE(text(turn), u"1 0 0 0"_s);
        QVERIFY(turn->set("0 1 0 1.5"));
        QVERIFY(qFuzzyCompare(
            m_machine->m_turn, QQuaternion::fromAxisAndAngle(0, 1, 0, qRadiansToDegrees(1.5F))));
    }

    void aPointerLeadsToItsObject()
    {
        Machine next;
        m_machine->m_next = &next;
        const KnField* const link = m_node->getField("next");
        QCOMPARE(text(link), u"Machine"_s);
        const KnNodePtr node(crvLinkedNode(link));
        QCOMPARE(crvNodeObject(node.get()), &next);
        const CrvNodeDetails* const details = CrvNodeDetails::of(*link);
        QVERIFY(details->isLink(*link));
        crvHideObject(&next); // as a window of the inspector's is
        QVERIFY(!details->isLink(*link));
        m_machine->m_next = nullptr;
        QVERIFY(!crvLinkedNode(link));
        QVERIFY(!crvLinkedNode(m_node->getField("speed")));
    }

    void dynamicPropertiesAreFields()
    {
        QVERIFY(!m_node->getField("weight"));
        m_machine->setProperty("weight", 3.5);
        runSensors();
        KnField* const weight = m_node->getField("weight");
        QVERIFY(weight && m_node->getField("speed"));
        const KnReadErrorCapture capture;
        QVERIFY(weight->set("4"));
        QCOMPARE(m_machine->property("weight"), QVariant(4.0));
        QVERIFY(capture.getText().isEmpty());
    }

    void deathLeavesNothingToWrite_data() { addTextRows({ { "before" }, { "in a setter" } }); }
    void deathLeavesNothingToWrite()
    {
        const bool inSetter = textRow<1>()[0] == u"in a setter";
        KnField* const speed = m_node->getField("speed");
        KnField* const label = m_node->getField("label");
        KnField* const fuse = m_node->getField("fuse");
        const Watch watches[] = { Watch(speed), Watch(m_node->getField("polled")) };
        m_machine->m_blow = [this] { m_machine.reset(); };
        if (inSetter)
            fuse->set("TRUE");
        else
            m_machine.reset();
        QVERIFY(!m_machine);
        const QString before = text(speed);
        const KnReadErrorCapture capture;
        QVERIFY(!speed->set("50"));
        QVERIFY(capture.getText().toUtf8().ends_with("the object is gone"));
        QCOMPARE(text(speed), before);
        text(label);
        QVERIFY(m_node->getField("serial")); // nobody had looked at it before
        runSensors();
        QCOMPARE(static_cast<KnGroup*>(m_node.get())->getNumChildren(), 0);
        QVERIFY(!crvNodeObject(m_node.get()));
    }

    void aNodeOutlivesTheEditInWhichItIsLetGo()
    {
        KnField* const fuse = m_node->getField("fuse");
        m_machine->m_blow = [this] {
            m_machine.release()->deleteLater();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            m_node = KnNodePtr();
        };
        const KnReadErrorCapture capture;
        fuse->set("TRUE");
        QCOMPARE(fuse->getContainer()->getReferenceCount(), 1);
    }

    void childrenComeGoAndDie()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        auto& root = static_cast<KnGroup&>(*m_node.get());
        KnGroupSensor sensor(nullptr, nullptr);
        sensor.attach(&root);
        QList<QPointer<QObject>> objects { m_machine.get() };
        for (int round = 0; round < 300; ++round) {
            for (quint32 i = random.bounded(4U); i > 0; --i) {
                objects.removeIf([](const auto& object) { return !object; });
                QObject* const one = objects[random.bounded(objects.size())];
                QObject* const other = objects[random.bounded(objects.size())];
                const auto isBelow = [](const QObject* object, const QObject* top) {
                    for (; object && object != top; object = object->parent()) { }
                    return object != nullptr;
                };
                if (one == m_machine.get() || random.bounded(2) == 0) {
                    objects += new QObject(one);
                    objects.last()->setObjectName(QString::number(round));
                } else if (random.bounded(2) == 0) {
                    delete one;
                } else if (!isBelow(other, one)) {
                    one->setParent(other);
                }
            }
            QCoreApplication::processEvents();
            QVERIFY2(treeText(m_node.get()) == treeText(m_machine.get()),
                qPrintable(u"seed %1, round %2"_s.arg(seed).arg(round)));
        }
    }

    void theClassTellsOfProperties_data()
    {
        addTextRows({
            { "speed",
                "int Machine::speed\ncan be written and reset\n"
                "changes are announced by speedChanged()" },
            { "heat", "double Machine::heat\nread-only\nchanges are announced by speedChanged()" },
            { "next",
                "QObject* Machine::next\ncan be written, but is only shown here\n"
                "nothing announces changes" },
            { "polled", "int Machine::polled\ncan be written\nnothing announces changes" },
            { "objectName",
                "QString QObject::objectName\ncan be written\n"
                "changes are announced by objectNameChanged(QString)" },
            { "weight", "dynamic property" },
        });
    }
    void theClassTellsOfProperties()
    {
        const auto [name, note] = textRow<2>();
        m_machine->setProperty("weight", 1);
        runSensors();
        KnField* const field = m_node->getField(KbName(toKbString(name)));
        QCOMPARE(crvPropertyNote(field), note);
        m_machine.reset();
        QCOMPARE(crvPropertyNote(field), QString());
    }

    void methodsWithoutParametersCanBeCalled()
    {
        m_machine->setSpeed(50);
        QVERIFY(crvMethods(m_node.get()).contains(u"resetSpeed()"_s));
        QVERIFY(!crvMethods(m_node.get()).contains(u"speedChanged()"_s));
        QVERIFY(crvCallMethod(m_node.get(), u"resetSpeed()"_s));
        QCOMPARE(m_machine->m_speed, 10);
        QVERIFY(!crvCallMethod(m_node.get(), u"speedChanged()"_s));
        m_machine.reset();
        QVERIFY(!crvCallMethod(m_node.get(), u"resetSpeed()"_s));
        QVERIFY(crvMethods(m_node.get()).isEmpty());
    }

    void whatIsHiddenNeverShows()
    {
        auto* const tool = new QObject(m_machine.get());
        auto* const child = new QObject(m_machine.get());
        child->setObjectName(u"child"_s);
        QCOMPARE(treeText(m_node.get()), u"mill( child)"_s);
        crvHideObject(tool);
        runSensors();
        QCOMPARE(treeText(m_node.get()), u"mill(child)"_s);
    }

    void anObjectOfAnotherThreadIsntRead()
    {
        QThread thread;
        thread.setObjectName(u"worker"_s);
        auto* const far = new Machine;
        auto* const below = new QObject(far);
        far->moveToThread(&thread);
        const KnNodePtr node(crvObjectNode(far));
        QCOMPARE(toQString(node->getObjectType().getName()), u"Machine"_s);
        QCOMPARE(node->getContainerFieldData()->getNum(), 1);
        QCOMPARE(text(node->getField("thread")), u"\"worker\""_s);
        QCOMPARE(static_cast<KnGroup*>(node.get())->getNumChildren(), 0);
        Q_UNUSED(below);
        // One that leaves later is left alone from then on.
        KnField* const polled = m_node->getField("polled");
        m_machine->moveToThread(&thread);
        m_machine->m_polledReads = 0;
        text(polled);
        const KnReadErrorCapture capture;
        QVERIFY(!polled->set("3"));
        QCOMPARE(m_machine->m_polledReads, 0);
        delete far;
    }

    void oneThatGoesToAnotherThreadIsLeftAloneUntilItIsBack()
    {
        QThread thread;
        thread.start();
        auto* const child = new QObject(m_machine.get());
        child->setObjectName(u"child"_s);
        KnField* const speed = m_node->getField("speed");
        QCOMPARE(treeText(m_node.get()), u"mill(child)"_s);
        m_machine->moveToThread(&thread);
        runSensors();
        QCOMPARE(treeText(m_node.get()), u"mill"_s);
        // There, no filter of ours is in the way of its events.
        const auto inThere = [this](const auto& function) {
            QMetaObject::invokeMethod(m_machine.get(), function, Qt::BlockingQueuedConnection);
        };
        inThere([this] { m_machine->setProperty("weight", 1); });
        const KnReadErrorCapture capture;
        QVERIFY(!speed->set("50"));
        QVERIFY(capture.getText().toUtf8().ends_with("lives in another thread"));
        QThread* const here = QThread::currentThread();
        inThere([this, here] { m_machine->moveToThread(here); });
        QTRY_COMPARE(treeText(m_node.get()), u"mill(child)"_s);
        QVERIFY(m_node->getField("weight"));
        QVERIFY(speed->set("50"));
        m_machine->setProperty("height", 1);
        runSensors();
        QVERIFY(m_node->getField("height"));
        thread.quit();
        thread.wait();
    }

    void aNewNameIsFollowed()
    {
        KnNameSensor sensor([](void*, KnSensor*) {}, nullptr);
        sensor.setAttached(true);
        m_machine->setObjectName(u"windmill"_s);
        QCoreApplication::processEvents();
        QCOMPARE(toQString(m_node->getName()), u"windmill"_s);
        QVERIFY(sensor.takeNodes().contains(m_node.get()));
    }

    void afterTheNodesNothingIsLeftInTheObject()
    {
        auto* const child = new QObject(m_machine.get());
        treeText(m_node.get());
        {
            const Watch watch(m_node->getField("speed"));
        }
        QVERIFY(!m_machine->isSpeedHeard());
        m_node = KnNodePtr();
        QVERIFY(!m_machine->isDeathHeard());
        delete child;
        runSensors();
    }

private:
    std::unique_ptr<Machine> m_machine;
    KnNodePtr m_node;
};

QTEST_MAIN(TestObjectNodes)
#include "test_object_nodes.moc"
