// SPDX-License-Identifier: BSD-3-Clause
#include "EditorRow.h"

#include <QCheckBox>

namespace {

void clickBox(EditorFixture& fixture)
{
    QTest::mouseClick(fixture.child<QCheckBox>("m_box"), Qt::LeftButton);
}

QString boxShown(EditorFixture& fixture)
{
    return fixture.child<QCheckBox>("m_box")->isChecked() ? QStringLiteral("checked")
                                                          : QStringLiteral("clear");
}

} // namespace

std::vector<EditorRow> singleValueRows()
{
    return {
        { "SFBool", "WfSFBoolWidget", "FALSE", clickBox, "TRUE", 1, boxShown, "clear", "checked",
            "FALSE", "clear" },
    };
}
