// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "KnTypeMacros.h"

class KnError;

/// Receives the errors of one class, on the thread that reports them.
using KnErrorCallback = void (*)(const KnError* error, void* data);

/// The handler of one error class: a callback and its data, read and changed from any thread. One
/// thread at a time runs callbacks, of all classes together, so that a callback may post errors of
/// any class and change any handler, its own too. A callback must not wait for another thread that
/// posts an error.
class KnErrorHandler {
public:
    /// Starts with the default handler, which writes one line to the C standard error stream.
    KnErrorHandler() = default;

    KnErrorCallback getCallback() const;
    void* getData() const;
    /// Null means silence. When this returns, the former callback no longer runs on any other
    /// thread, so that its data may go.
    void set(KnErrorCallback callback, void* data);
    /// Calls nest when a callback posts errors. Beyond a depth that no sane callback reaches,
    /// errors are written to the standard error stream instead.
    void call(const KnError& error);

    static void writeToStandardError(const KnError* error, void* data);

private:
    KnErrorCallback m_callback = &KnErrorHandler::writeToStandardError;
    void* m_data = nullptr; // given to the callback unchanged, not owned
};

/// In the body of an error class: its type and its own handler. What follows is public.
#define KN_ERROR(Class)                                                                            \
    KN_TYPE(Class)                                                                                 \
    static KnErrorCallback getHandlerCallback() { return handler().getCallback(); }                \
    static void* getHandlerData() { return handler().getData(); }                                  \
    static void setHandlerCallback(KnErrorCallback callback, void* data)                           \
    {                                                                                              \
        handler().set(callback, data);                                                             \
    }                                                                                              \
                                                                                                   \
private:                                                                                           \
    static KnErrorHandler& handler();                                                              \
                                                                                                   \
public:

/// In the source file of an error class.
#define KN_ERROR_SOURCE(Class, Parent)                                                             \
    KN_ABSTRACT_TYPE_SOURCE(Class, Parent)                                                         \
    KN_ERROR_HANDLER_SOURCE(Class)

/// The handler alone. It outlives all static objects.
#define KN_ERROR_HANDLER_SOURCE(Class)                                                             \
    KnErrorHandler& Class::handler()                                                               \
    {                                                                                              \
        static KnErrorHandler& handler = *new KnErrorHandler;                                      \
        return handler;                                                                            \
    }

/// Something that went wrong, with a text for the person who reads it in a console. Base of all
/// error classes. Each class has a handler of its own, and an error reaches that of its class only.
class KnError : public KnTypedObject {
    KN_ERROR(KnError)
    explicit KnError(KbString text);

    const KbString& getDebugString() const { return m_text; }

    /// Makes the error and gives it to the handler of this class, on the calling thread.
    static void post(const KbString& text);

private:
    KbString m_text;
};
