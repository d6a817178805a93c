// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QStringView>

/// Appends `text` to `json` as a JSON string in quotes, in UTF-8. A surrogate without its other
/// half has no UTF-8 and is written as an escape, which a reader turns back into the same text.
void appendJsonString(QByteArray& json, QStringView text);
