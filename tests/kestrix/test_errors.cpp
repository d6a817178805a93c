// SPDX-License-Identifier: BSD-3-Clause
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"
#include "KnReadError.h"

#include <QTest>

#include <cstdio>
#include <functional>

#include <unistd.h>

namespace {

/// One error class, and how an error of it is posted.
struct Class {
    const char* name;
    KnType (*type)();
    KnErrorCallback (*callback)();
    void* (*data)();
    void (*set)(KnErrorCallback callback, void* data);
    void (*post)();
    const char* text;
};

template <class Error>
Class row(const char* name, void (*post)(), const char* text)
{
    return { name, &Error::getClassTypeId, &Error::getHandlerCallback, &Error::getHandlerData,
        &Error::setHandlerCallback, post, text };
}

const Class classes[] = {
    row<KnDebugError>(
        "DebugError", [] { KnDebugError::post(KnDebugError::Info, "a"); }, "a"),
    row<KnError>(
        "Error", [] { KnError::post("b"); }, "b"),
    row<KnErrorStack>(
        "ErrorStack",
        [] {
            KnErrorStack::post({ "c", "d" });
        },
        "c\nd"),
    row<KnGLError>(
        "GLError", [] { KnGLError::post(0x0502, "drawing"); },
        "drawing: GL_INVALID_OPERATION (0x0502)"),
    row<KnMemoryError>(
        "MemoryError", [] { KnMemoryError::post("e"); }, "e"),
    row<KnReadError>(
        "ReadError", [] { KnReadError::post("f"); }, "f"),
};

struct Heard {
    QByteArrayList texts;
    QByteArrayList types;
};

void note(const KnError* error, void* data)
{
    auto* heard = static_cast<Heard*>(data);
    heard->texts += QByteArray::fromStdString(error->getDebugString().toUtf8());
    heard->types
        += QByteArray::fromStdString(error->getObjectType().getName().getString().toUtf8());
    QVERIFY(error->isOfType(KnError::getClassTypeId()));
}

} // namespace

class TestErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void eachClassHasItsOwnHandler();
    void nullIsSilence();
    void theDefaultHandlerWritesOneLine();
    void severities();
    void unknownGraphicsErrors();
    void handlersPostErrors();
    void aHandlerReplacesItself();
    void endlessPostingEnds();

private:
    /// What the process writes to standard error meanwhile.
    static QByteArray standardErrorOf(const std::function<void()>& action);
};

void TestErrors::cleanup()
{
    for (const Class& each : classes)
        each.set(&KnErrorHandler::writeToStandardError, nullptr);
}

QByteArray TestErrors::standardErrorOf(const std::function<void()>& action)
{
    std::FILE* file = std::tmpfile();
    std::fflush(stderr);
    const int before = dup(STDERR_FILENO);
    dup2(fileno(file), STDERR_FILENO);
    action();
    std::fflush(stderr);
    dup2(before, STDERR_FILENO);
    close(before);
    std::rewind(file);
    QByteArray text(4096, '\0');
    text.resize(static_cast<qsizetype>(std::fread(text.data(), 1, 4096, file)));
    std::fclose(file);
    return text;
}

void TestErrors::eachClassHasItsOwnHandler()
{
    Heard heard[std::size(classes)];
    for (std::size_t i = 0; i < std::size(classes); ++i) {
        classes[i].set(&note, &heard[i]);
        QVERIFY(classes[i].callback() == &note);
        QCOMPARE(classes[i].data(), static_cast<void*>(&heard[i]));
    }
    for (std::size_t i = 0; i < std::size(classes); ++i) {
        classes[i].post();
        QCOMPARE(heard[i].texts, QByteArrayList { classes[i].text });
        QCOMPARE(heard[i].types, QByteArrayList { classes[i].name });
        QVERIFY(classes[i].type().isDerivedFrom(KnError::getClassTypeId()));
    }
    for (const Heard& each : heard)
        QCOMPARE(each.texts.size(), 1);
}

void TestErrors::nullIsSilence()
{
    for (const Class& each : classes) {
        each.set(nullptr, nullptr);
        QVERIFY(!each.callback());
        QCOMPARE(standardErrorOf(each.post), QByteArray());
    }
}

void TestErrors::theDefaultHandlerWritesOneLine()
{
    for (const Class& each : classes) {
        QVERIFY(each.callback() == &KnErrorHandler::writeToStandardError);
        const QByteArray text = QByteArray(each.text).replace('\n', " | ");
        QCOMPARE(standardErrorOf(each.post), QByteArray(each.name) + ": " + text + '\n');
    }
}

void TestErrors::severities()
{
    QList<int> severities;
    KnDebugError::setHandlerCallback(
        [](const KnError* error, void* data) {
            *static_cast<QList<int>*>(data)
                += static_cast<const KnDebugError*>(error)->getSeverity();
        },
        &severities);
    KnDebugError::post(KnDebugError::Error, "a");
    KnDebugError::post(KnDebugError::Warning, "b");
    KnDebugError::post(KnDebugError::Info, "c");
    KnDebugError::post(77, "d");
    QCOMPARE(severities, (QList<int> { 0, 1, 2, 77 }));
}

void TestErrors::unknownGraphicsErrors()
{
    Heard heard;
    KnGLError::setHandlerCallback(&note, &heard);
    KnGLError::post(0x1f, KbString());
    QCOMPARE(heard.texts, QByteArrayList { "unknown OpenGL error (0x001f)" });
}

void TestErrors::handlersPostErrors()
{
    static Heard heard;
    heard = {};
    KnReadError::setHandlerCallback(&note, &heard);
    KnError::setHandlerCallback(
        [](const KnError*, void*) { KnReadError::post("nested"); }, nullptr);
    KnError::post("outer");
    QCOMPARE(heard.texts, QByteArrayList { "nested" });
}

void TestErrors::aHandlerReplacesItself()
{
    Heard heard;
    KnError::setHandlerCallback(
        [](const KnError* error, void* data) {
            KnError::setHandlerCallback(&note, data);
            QVERIFY(KnError::getHandlerCallback() == &note);
            KnError::post(KbString("again: " + error->getDebugString().toUtf8()));
        },
        &heard);
    KnError::post("x");
    KnError::post("y");
    QCOMPARE(heard.texts, (QByteArrayList { "again: x", "y" }));
}

void TestErrors::endlessPostingEnds()
{
    static int calls;
    calls = 0;
    KnError::setHandlerCallback(
        [](const KnError*, void*) {
            ++calls;
            KnError::post("once more");
        },
        nullptr);
    QCOMPARE(standardErrorOf([] { KnError::post("first"); }), QByteArray("Error: once more\n"));
    QVERIFY(calls > 1);
}

QTEST_APPLESS_MAIN(TestErrors)
#include "test_errors.moc"
