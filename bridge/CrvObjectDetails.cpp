// SPDX-License-Identifier: BSD-3-Clause
#include "CrvObjectDetails.h"

#include "CrvObjects.h"
#include "PropertyField.h"
#include "TextForm.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QThread>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("CrvObjectDetails", text); }

bool needsNoParameters(const QMetaMethod& method)
{
    const bool isCallable
        = method.methodType() == QMetaMethod::Slot || method.methodType() == QMetaMethod::Method;
    return isCallable && method.access() == QMetaMethod::Public && method.parameterCount() == 0;
}

/// Null once the object is dead, and while it lives in another thread.
QObject* callableObject(const KnFieldContainer* node)
{
    QObject* const object = crvNodeObject(node);
    return object && object->thread() == QThread::currentThread() ? object : nullptr;
}

QString writingNote(const QMetaProperty& property, const KnField& field)
{
    if (property.isWritable() && field.isReadOnly())
        return tr("can be written, but is only shown here");
    if (property.isConstant())
        return tr("constant");
    if (!property.isWritable())
        return tr("read-only");
    return property.isResettable() ? tr("can be written and reset") : tr("can be written");
}

} // namespace

QString crvPropertyNote(const KnField* field)
{
    const auto* const propertyField = dynamic_cast<const PropertyField*>(field);
    if (!propertyField || !propertyField->place().object())
        return QString();
    const QMetaProperty property = propertyField->place().property();
    if (!property.isValid())
        return tr("dynamic property");
    QStringList lines { QStringLiteral("%1 %2::%3")
                            .arg(QLatin1String(property.typeName()),
                                QLatin1String(property.enclosingMetaObject()->className()),
                                QLatin1String(property.name())) };
    lines += writingNote(property, *field);
    if (property.hasNotifySignal())
        lines += tr("changes are announced by %1")
                     .arg(QLatin1String(property.notifySignal().methodSignature()));
    else if (!property.isConstant())
        lines += tr("nothing announces changes");
    if (!property.isDesignable())
        lines += tr("not for designers");
    if (!property.isStored())
        lines += tr("not stored");
    return lines.join(u'\n');
}

QStringList crvMethods(const KnFieldContainer* node)
{
    QStringList signatures;
    const QObject* const object = callableObject(node);
    for (int i = 0; object && i < object->metaObject()->methodCount(); ++i) {
        const QMetaMethod method = object->metaObject()->method(i);
        const QString signature = QString::fromLatin1(method.methodSignature());
        if (needsNoParameters(method) && !signatures.contains(signature))
            signatures += signature;
    }
    return signatures;
}

bool crvCallMethod(const KnFieldContainer* node, const QString& signature, QString* result)
{
    QObject* const object = callableObject(node);
    if (!object)
        return false;
    const QMetaObject* const meta = object->metaObject();
    const QMetaMethod method = meta->method(meta->indexOfMethod(signature.toLatin1()));
    if (!method.isValid() || !needsNoParameters(method))
        return false;
    const QMetaType type = method.returnMetaType();
    // Invalid for no type, and for one that can't be made without a value.
    QVariant returned = type.id() == QMetaType::Void ? QVariant() : QVariant(type);
    const bool isKept = returned.isValid();
    // A call that returns a variant writes it as a whole.
    void* const place = type == QMetaType::fromType<QVariant>() ? &returned : returned.data();
    try {
        const bool isCalled = isKept ? method.invoke(object, Qt::DirectConnection,
                                  QGenericReturnArgument(method.typeName(), place))
                                     : method.invoke(object, Qt::DirectConnection);
        if (isCalled && isKept && result)
            *result = valueText(returned);
        return isCalled;
    } catch (...) {
        if (result)
            *result = tr("an exception was thrown");
        return false;
    }
}
