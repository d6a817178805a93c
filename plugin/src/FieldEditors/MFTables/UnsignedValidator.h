// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QValidator>

/// Limits a line to unsigned decimal numbers of 32 bits. The empty text is acceptable. The bounds
/// aren't compared: with a bottom above the top no number is acceptable.
class UnsignedValidator : public QValidator {
public:
    UnsignedValidator(unsigned int bottom, unsigned int top, QObject* parent);

    State validate(QString& input, int& pos) const override;
    virtual void setRange(unsigned int bottom, unsigned int top);

    void setBottom(unsigned int bottom);
    void setTop(unsigned int top);
    unsigned int bottom() const { return m_bottom; }
    unsigned int top() const { return m_top; }

private:
    unsigned int m_bottom = 0;
    unsigned int m_top = 0;
};
