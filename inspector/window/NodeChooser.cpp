// SPDX-License-Identifier: BSD-3-Clause
#include "NodeChooser.h"

#include "KnFieldContainer.h"
#include "SceneText.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

NodeChooser::NodeChooser(QWidget* parent)
    : QDialog(parent)
    , m_line(new QLineEdit(this))
    , m_list(new QListView(this))
{
    setObjectName(QStringLiteral("nodeChooser"));
    setWindowTitle(tr("Add Node"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_line->setObjectName(QStringLiteral("nodeTypeFilter"));
    m_line->setPlaceholderText(tr("Filter types"));
    m_line->setClearButtonEnabled(true);
    m_line->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("nodeTypeList"));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    layout->addWidget(buttons);

    for (const KnType& type : KnType::getCreatableTypes(KnFieldContainer::getClassTypeId()))
        m_types.appendRow(new QStandardItem(typeName(type)));
    m_shown.setSourceModel(&m_types);
    m_shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown.sort(0);
    m_list->setModel(&m_shown);
    narrow(QString());

    connect(m_line, &QLineEdit::textChanged, this, &NodeChooser::narrow);
    connect(m_list, &QListView::doubleClicked, this, &NodeChooser::choose);
    connect(buttons, &QDialogButtonBox::accepted, this, &NodeChooser::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_line->setFocus();
}

// There is always one that Return adds.
void NodeChooser::narrow(const QString& text)
{
    m_shown.setFilterFixedString(text.trimmed());
    m_list->setCurrentIndex(m_shown.index(0, 0));
    m_add->setEnabled(m_shown.rowCount() > 0);
}

void NodeChooser::choose()
{
    const QModelIndex index = m_list->currentIndex();
    if (!index.isValid())
        return;
    const KnType type = KnType::fromName(KbName(toKbString(index.data().toString())));
    accept();
    Q_EMIT typeChosen(type);
}

bool NodeChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_PageUp
        && key != Qt::Key_PageDown)
        return QDialog::eventFilter(watched, event);
    QCoreApplication::sendEvent(m_list, event);
    return true;
}
