// SPDX-License-Identifier: BSD-3-Clause
#include "CrvNodeDetails.h"
#include "CrvObjects.h"
#include "KnFieldContainer.h"
#include "TextRows.h"

#include <QColor>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <QThread>

#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

using namespace Qt::StringLiterals;

struct Unknown; // a type that Qt can't copy

/// An object of a program that knows nothing of nodes.
class Speaker : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE QString word() const { return u"hello"_s; }
    Q_INVOKABLE QVariant load() const { return 7; }
    Q_INVOKABLE QColor colour() const { return Qt::red; }
    Q_INVOKABLE void nothing() { ++m_calls; }
    Q_INVOKABLE void leave() { delete this; }
    Q_INVOKABLE int throwing() { throw std::runtime_error("no"); }

    int m_calls = 0;

Q_SIGNALS:
    void spoke();
    void said(const QString& text, int number = 3);
    void pointed(QObject* at);
    void painted(const QColor& color, const QVariant& value);
    void odd(Unknown* unknown);
};

using Emission = void (*)(Speaker*);

class TestObjectSignals : public QObject {
    Q_OBJECT

    void watch(const char* signature, bool watched = true)
    {
        CrvNodeDetails::of(*m_node.get())
            ->setWatched(*m_node.get(), QLatin1String(signature), watched);
    }
    /// What was printed, without the times.
    QString printed() const
    {
        QString text = QString::fromStdString(m_output.str());
        return text.remove(QRegularExpression(
            u"^\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d  "_s, QRegularExpression::MultilineOption));
    }
    QString call(const char* signature)
    {
        return CrvNodeDetails::of(*m_node.get())->call(*m_node.get(), QLatin1String(signature));
    }

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_speaker = new Speaker;
        m_speaker->setObjectName(u"radio"_s);
        m_node = KnNodePtr(crvObjectNode(m_speaker));
        m_former = std::cout.rdbuf(m_output.rdbuf());
    }
    void cleanup()
    {
        CrvNodeDetails::endAllWatches();
        delete m_speaker;
        m_node = KnNodePtr();
        std::cout.rdbuf(m_former);
        m_output.str({});
    }

    void argumentsAreTexts_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<Emission>("emission");
        QTest::addColumn<QString>("line");
        const auto row = [](const char* signal, Emission emission, const QString& line) {
            QTest::addRow("%s", signal) << QByteArray(signal) << emission << line;
        };
        row(
            "spoke()", [](Speaker* s) { Q_EMIT s->spoke(); }, u"spoke()"_s);
        row(
            "said(QString,int)", [](Speaker* s) { Q_EMIT s->said(u"a\nb"_s); },
            u"said(\"a\\nb\", 3)"_s);
        row(
            "pointed(QObject*)", [](Speaker* s) { Q_EMIT s->pointed(s); },
            u"pointed(Speaker \"radio\")"_s);
        row(
            "painted(QColor,QVariant)", [](Speaker* s) { Q_EMIT s->painted(Qt::red, 5); },
            u"painted(#ff0000, 5)"_s);
        row(
            "odd(Unknown*)", [](Speaker* s) { Q_EMIT s->odd(nullptr); }, u"odd(Unknown*)"_s);
    }
    void argumentsAreTexts()
    {
        QFETCH(QByteArray, signal);
        QFETCH(Emission, emission);
        QFETCH(QString, line);
        emission(m_speaker);
        QCOMPARE(printed(), QString());
        watch(signal);
        emission(m_speaker);
        QCOMPARE(printed(), u"Speaker \"radio\"  %1\n"_s.arg(line));
        watch(signal, false);
        emission(m_speaker);
        QCOMPARE(printed().count(u'\n'), 1);
        watch(signal);
        emission(m_speaker);
        QCOMPARE(printed().count(u'\n'), 2);
    }

    void aFloodIsCounted()
    {
        watch("spoke()");
        for (int i = 0; i < 10000; ++i)
            Q_EMIT m_speaker->spoke();
        const qsizetype lines = printed().count(u'\n');
        QVERIFY(lines > 10 && lines < 1000);
        QTRY_VERIFY(printed().endsWith(u"... and %1 more signals\n"_s.arg(10000 - lines)));
    }

    void anotherThreadSpeaksLater()
    {
        watch("said(QString,int)");
        Speaker* const speaker = m_speaker;
        const std::unique_ptr<QThread> thread(
            QThread::create([speaker] { Q_EMIT speaker->said(u"far"_s, 1); }));
        thread->start();
        QVERIFY(thread->wait());
        QCOMPARE(printed(), QString());
        QTRY_COMPARE(printed(), u"Speaker \"radio\"  said(\"far\", 1)\n"_s);
    }

    void aWatchEndsWithItsObject()
    {
        watch("destroyed(QObject*)");
        watch("spoke()");
        const QPointer<Speaker> dead(m_speaker);
        delete std::exchange(m_speaker, nullptr);
        QVERIFY(printed().contains(u"destroyed("_s));
        QVERIFY(CrvNodeDetails::of(*m_node.get())->events(*m_node.get()).empty());
        watch("spoke()");
    }

    void callsGiveTexts_data()
    {
        addTextRows({ { "word()", " → \"hello\"" }, { "load()", " → 7" },
            { "nothing()", " was called" }, { "throwing()", ": an exception was thrown" },
            { "other()", " wasn't called: the object is gone, or has no such method" } });
    }
    void callsGiveTexts()
    {
        const auto [method, text] = textRow<2>();
        QCOMPARE(call(qPrintable(method)), u"Speaker \"radio\"."_s + method + text);
        QCOMPARE(m_speaker->m_calls, method == u"nothing()" ? 1 : 0);
    }

    void anObjectDiesByACall()
    {
        const QPointer<Speaker> guard(m_speaker);
        call("leave()");
        QVERIFY(!guard);
        m_speaker = nullptr;
        QVERIFY(call("word()").contains(u"gone"_s));
    }

private:
    Speaker* m_speaker = nullptr; // owned
    KnNodePtr m_node;
    std::ostringstream m_output;
    std::streambuf* m_former = nullptr;
};

QTEST_GUILESS_MAIN(TestObjectSignals)
#include "test_object_signals.moc"
