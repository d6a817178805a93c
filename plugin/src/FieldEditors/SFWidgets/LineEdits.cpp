// SPDX-License-Identifier: BSD-3-Clause
#include "LineEdits.h"

#include <QBoxLayout>
#include <QLineEdit>

#include <limits>

QLineEdit* makeLineEdit(QWidget* parent, QBoxLayout* layout)
{
    auto* const line = new QLineEdit(parent);
    line->setObjectName(QStringLiteral("lineEdit"));
    line->setAlignment(Qt::AlignLeft);
    line->setMaxLength(std::numeric_limits<int>::max());
    layout->addWidget(line, 1);
    return line;
}
