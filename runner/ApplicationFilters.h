// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class OwnObjects;
class QObject;

/// Keeps what the program installs as an event filter of the whole application away from the
/// inspector's windows: a filter that eats keys, or that takes every widget for one of the
/// program's, was not written with them in mind.
///
/// This library stands before Qt's when the program's calls are resolved, so what it installs on
/// the application object passes through here. It works the same for the program, which also finds
/// its filter again to remove it.
namespace ApplicationFilters {

/// Whose windows are left out; null for nobody's. Not owned.
void leaveOut(const OwnObjects* own);

/// Installs the inspector's own filter on the application object.
void installOwn(QObject* filter);

} // namespace ApplicationFilters
