// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

class KnField;
class KnFieldContainer;

// What a person may want to know of an object beyond the values of its properties. All functions
// are for the thread of the user interface.

/// What the object's class says of the property behind a field, line by line: type, class and name,
/// how it can be written, what announces changes, and whether it is for designers and stored. Empty
/// for a field that is no property's, and when the object is gone.
QString crvPropertyNote(const KnField* field);

/// The signatures of the public methods that need no parameters, those of the base classes first:
/// slots, and what is marked as invokable. Empty for a node that is no object's.
QStringList crvMethods(const KnFieldContainer* node);
/// Calls the method of this signature. False if there is none, or no object, or if it threw an
/// exception. `result`, if given, is what it returned as text, or says that it threw. The object
/// may be gone afterwards.
bool crvCallMethod(
    const KnFieldContainer* node, const QString& signature, QString* result = nullptr);
