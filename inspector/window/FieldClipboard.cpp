// SPDX-License-Identifier: BSD-3-Clause
#include "FieldClipboard.h"

#include "FieldLines.h"
#include "FieldPaste.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace {

// Beside the text: it has come from here, so each line begins with the name of a field.
QString ownFormat() { return QStringLiteral("application/x-corvane-fields"); }

} // namespace

void copyFields(const std::vector<KnField*>& fields)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(fieldLines(fields));
    data->setData(ownFormat(), "1");
    QGuiApplication::clipboard()->setMimeData(data.release()); // which the clipboard owns
}

void copyAllFields(KnFieldContainer& node) { copyFields(fieldsOf(node)); }

bool canPasteFields()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

QString pasteFields(
    const std::vector<KnFieldContainer*>& nodes, const std::vector<KnField*>& chosen)
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return QString();
    return pasteOntoFields(nodes, chosen, data->text(), data->hasFormat(ownFormat()));
}

QString pasteFieldRows(KnMField& array, int start, FieldStep::Rows how)
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    return data ? pasteRows(array, start, how, data->text(), data->hasFormat(ownFormat()))
                : QString();
}
