// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFColorTable.h"

#include "ColorChannels.h"
#include "EditorKind.h"
#include "KbVec.h"
#include "KnMField.h"
#include "RowColor.h"
#include "TrackedRow.h"
#include "WfMFColorTableItemDelegate.h"
#include "WfMFieldWidget.h"

#include <QColorDialog>

WfMFColorTable::WfMFColorTable(WfMFieldWidget* widget, QWidget* parent, const char* name)
    : WfMFieldTable(widget, parent, name)
{
    // The plain one would live, unused, as long as the table.
    delete m_delegate;
    m_delegate = new WfMFColorTableItemDelegate(widget, cellEditing(), this);
    setItemDelegate(m_delegate);
    setEditorKind(FloatKind);
    setRealRange(0.0, 1.0);
    connect(this, &QTableWidget::cellClicked, this, &WfMFColorTable::getColorFromEditor);
}

void WfMFColorTable::getColorFromEditor(int row, int col)
{
    KnMField* const shown = field();
    if (col != 0 || !m_widget->mayWrite(shown))
        return;
    const RowColor before = rowColor(*m_widget, row);
    TrackedRow tracked;
    tracked.look(*shown, row);
    QColorDialog::ColorDialogOptions options;
    options.setFlag(QColorDialog::ShowAlphaChannel, before.hasAlpha);
    const QColor chosen
        = QColorDialog::getColor(before.color, this, QStringLiteral("color dialog"), options);
    if (!chosen.isValid())
        return;
    // The program runs on behind the dialog. A colour that was chosen for one row must reach
    // neither another field nor another row that has moved to its place.
    if (field() != shown)
        return;
    const bool isSameValue
        = shown->getNum() == tracked.count() && rowColor(*m_widget, row) == before;
    if (!tracked.isInPlace(isSameValue))
        return;
    KbVec4f color;
    colorChannels(chosen, &color[0], KbVec4f::dimension);
    m_widget->setFieldColor(row, &color);
}
