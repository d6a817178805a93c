// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>

/// Looks for a text in others, upper or lower case. Made for many short kernel texts: as long as
/// both are plain ASCII, nothing is converted.
class TextPattern {
public:
    explicit TextPattern(const QString& text);

    bool isIn(const std::string& utf8) const;
    /// Whether the whole text is the same.
    bool equals(const std::string& utf8) const;

private:
    QString m_text;
    std::string m_lower; // empty unless the text is plain ASCII
};
