// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnPreferences.h"
#include "KnReadErrorCapture.h"
#include "StandardError.h"

#include <QTest>

namespace {

/// One error class: its handler, and errors of it in the words of the default handler.
struct Class {
    void (*set)(KnErrorCallback callback, void* data);
    void (*post)();
    QByteArray lines;
};

const auto& classes()
{
    static const Class all[] = {
        { &KnDebugError::setHandlerCallback, [] { KnDebugError::post(KnDebugError::Info, "a"); },
            "DebugError: a\n" },
        { &KnError::setHandlerCallback, [] { KnError::post("b"); }, "Error: b\n" },
        { &KnErrorStack::setHandlerCallback,
            [] {
                KnErrorStack::post({ "c", "d" });
            },
            "ErrorStack: c | d\n" },
        { &KnGLError::setHandlerCallback,
            [] { KnGLError::post(0x0502, "drawing"), KnGLError::post(0x1f, KbString()); },
            "GLError: drawing: GL_INVALID_OPERATION (0x0502)\n"
            "GLError: unknown OpenGL error (0x001f)\n" },
        { &KnMemoryError::setHandlerCallback, [] { KnMemoryError::post("e"); },
            "MemoryError: e\n" },
        { &KnReadError::setHandlerCallback, [] { KnReadError::post("f"); }, "ReadError: f\n" },
    };
    return all;
}

void postAll()
{
    for (const Class& each : classes())
        each.post();
}

} // namespace

/// The error classes, and the preferences that a variable of the environment sets.
class TestErrors : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup()
    {
        for (const Class& each : classes())
            each.set(&KnErrorHandler::writeToStandardError, nullptr);
    }

    void eachClassHasItsOwnHandler_data()
    {
        QTest::addColumn<const Class*>("tested");
        for (const Class& each : classes())
            QTest::newRow(each.lines.left(each.lines.indexOf(':'))) << &each;
    }
    void eachClassHasItsOwnHandler()
    {
        QFETCH(const Class*, tested);
        QByteArray expected;
        for (const Class& each : classes())
            expected += each.lines;
        QCOMPARE(standardErrorOf(&postAll), expected);
        expected.replace(tested->lines, "");
        tested->set(nullptr, nullptr);
        QCOMPARE(standardErrorOf(&postAll), expected);
        int heard = 0;
        tested->set([](const KnError*, void* count) { ++*static_cast<int*>(count); }, &heard);
        QCOMPARE(standardErrorOf(&postAll), expected);
        QCOMPARE(heard, tested->lines.count('\n'));
    }

    void capturesNest()
    {
        ReadErrors errors;
        {
            const KnReadErrorCapture outer;
            KnReadError::post("a");
            {
                const KnReadErrorCapture inner;
                QVERIFY(inner.getText().isEmpty());
                KnReadError::post("b");
                KnError::setHandlerCallback(
                    [](const KnError*, void*) { KnReadError::post("from a handler"); }, nullptr);
                KnError::post("d"); // the handler runs on this thread
                QCOMPARE(inner.getText().toUtf8(), "from a handler");
            }
            QCOMPARE(outer.getText().toUtf8(), "a");
            KnReadError::post("still the outer one's");
            QVERIFY(errors.texts.isEmpty());
        }
        KnReadError::post("e");
        QCOMPARE(errors.texts, QByteArrayList { "e" });
    }

    void endlessPostingEnds()
    {
        const KnErrorCallback endless = [](const KnError*, void*) { KnError::post("once more"); };
        KnError::setHandlerCallback(endless, nullptr);
        QCOMPARE(standardErrorOf([] { KnError::post("first"); }), "Error: once more\n");
    }

    void boolOfAVariable()
    {
        const char* const name = "CORVANE_TEST_SWITCH";
        const auto get = [name](int byDefault) { return KnPreferences::getBool(name, byDefault); };
        QVERIFY(get(1) && !get(0));
        for (const char* off : { "0", "off", "NO", "FaLsE" })
            QVERIFY2(qputenv(name, off) && !get(1) && !get(0), off);
        for (const char* on : { "1", "on", "yes", "00", " 0", "offer" })
            QVERIFY2(qputenv(name, on) && get(1) && get(0), on);
        QVERIFY(qputenv(name, "") && get(1) && !get(0));
    }
};

QTEST_APPLESS_MAIN(TestErrors)
#include "test_errors.moc"
