// SPDX-License-Identifier: BSD-3-Clause
#include "FieldTypes.h"
#include "KnDebugError.h"
#include "KnErrorStack.h"
#include "KnGLError.h"
#include "KnMemoryError.h"

#include <QTest>

#include <cstdio>

#include <unistd.h>

namespace {

/// One error class: its handler, and an error of it in the words of the default handler.
struct Class {
    void (*set)(KnErrorCallback callback, void* data);
    void (*post)();
    QByteArray line;
};

const Class classes[] = {
    { &KnDebugError::setHandlerCallback, [] { KnDebugError::post(KnDebugError::Info, "a"); },
        "DebugError: a\n" },
    { &KnError::setHandlerCallback, [] { KnError::post("b"); }, "Error: b\n" },
    { &KnErrorStack::setHandlerCallback,
        [] {
            KnErrorStack::post({ "c", "d" });
        },
        "ErrorStack: c | d\n" },
    { &KnGLError::setHandlerCallback, [] { KnGLError::post(0x0502, "drawing"); },
        "GLError: drawing: GL_INVALID_OPERATION (0x0502)\n" },
    { &KnMemoryError::setHandlerCallback, [] { KnMemoryError::post("e"); }, "MemoryError: e\n" },
    { &KnReadError::setHandlerCallback, [] { KnReadError::post("f"); }, "ReadError: f\n" },
};

void postAll()
{
    for (const Class& each : classes)
        each.post();
}

/// What the process writes to standard error meanwhile.
QByteArray standardErrorOf(void (*action)())
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

} // namespace

class TestErrors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void eachClassHasItsOwnHandler();
    void severityAndCode();
    void aHandlerReplacesItselfAndPosts();
    void endlessPostingEnds();
};

void TestErrors::eachClassHasItsOwnHandler()
{
    QByteArray allLines;
    for (const Class& each : classes)
        allLines += each.line;
    QCOMPARE(standardErrorOf(&postAll), allLines);
    for (const Class& each : classes) {
        QByteArray others = '\n' + allLines;
        others = others.replace('\n' + each.line, "\n").mid(1);
        each.set(nullptr, nullptr);
        QCOMPARE(standardErrorOf(&postAll), others);
        QByteArray heard;
        each.set(
            [](const KnError* error, void* data) {
                QVERIFY(error->isOfType(KnError::getClassTypeId()));
                *static_cast<QByteArray*>(data) += error->getDebugString().toUtf8().c_str();
            },
            &heard);
        QCOMPARE(standardErrorOf(&postAll), others);
        QCOMPARE(heard.replace('\n', " | "), each.line.mid(each.line.indexOf(':') + 2).trimmed());
        each.set(&KnErrorHandler::writeToStandardError, nullptr);
    }
}

void TestErrors::severityAndCode()
{
    int severity = 0;
    KnDebugError::setHandlerCallback(
        [](const KnError* error, void* data) {
            *static_cast<int*>(data) = static_cast<const KnDebugError*>(error)->getSeverity();
        },
        &severity);
    KnDebugError::post(KnDebugError::Info, "text");
    QCOMPARE(severity, 2);
    Errors<KnGLError> errors;
    KnGLError::post(0x1f, KbString());
    QCOMPARE(errors.texts, QByteArrayList { "unknown OpenGL error (0x001f)" });
}

void TestErrors::aHandlerReplacesItselfAndPosts()
{
    ReadErrors errors;
    KnError::setHandlerCallback(
        [](const KnError* error, void*) {
            KnReadError::post(KbString("nested in " + error->getDebugString().toUtf8()));
            KnError::setHandlerCallback(
                [](const KnError* second, void*) { KnReadError::post(second->getDebugString()); },
                nullptr);
            KnError::post("again");
        },
        nullptr);
    KnError::post("x");
    KnError::post("y");
    QCOMPARE(errors.texts, (QByteArrayList { "nested in x", "again", "y" }));
}

void TestErrors::endlessPostingEnds()
{
    KnError::setHandlerCallback([](const KnError*, void*) { KnError::post("once more"); }, nullptr);
    QCOMPARE(standardErrorOf([] { KnError::post("first"); }), QByteArray("Error: once more\n"));
}

QTEST_APPLESS_MAIN(TestErrors)
#include "test_errors.moc"
