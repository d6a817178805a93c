// SPDX-License-Identifier: BSD-3-Clause
#include "WfMFieldWidget.h"

#include "AccessButtonPrivate.h"
#include "AccessibleNames.h"
#include "FieldActions.h"
#include "FieldButtons.h"
#include "KnMField.h"
#include "LayoutMetrics.h"
#include "OffInputs.h"
#include "PanelParts.h"
#include "Pixmaps.h"
#include "WfMFColorTable.h"
#include "WfMFieldTable.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>

WfMFieldWidget::WfMFieldWidget(const char* name)
    : WfMFieldWidget(PlainTable, name)
{
}

WfMFieldWidget::WfMFieldWidget(int tableKind, const char* name)
    : m_deletePixmap(deletePixmap())
    , m_addPixmap(addPixmap())
    , m_upPixmap(upPixmap())
    , m_downPixmap(downPixmap())
    , m_defaultPixmap(defaultPixmap())
    , m_ignorePixmap(ignorePixmap())
{
    setObjectName(name ? QString(QLatin1String(name)) : QStringLiteral("WfMFieldWidget"));
    m_table = tableKind == ColorTable ? new WfMFColorTable(this, getFrame(), "m_table")
                                      : new WfMFieldTable(this, getFrame(), "m_table");
}

WfMFieldWidget::~WfMFieldWidget()
{
    // The frame is deleted after this object, to which an open cell editor would still write.
    m_table->dropCellEdit();
}

void WfMFieldWidget::setLabel(const QString& text)
{
    if (!m_label)
        m_label = new QLabel(getFrame());
    if (m_label->text().isEmpty())
        m_label->setText(centredText(text));
}

KnMField* WfMFieldWidget::shownField() const { return shows(m_field) ? m_field : nullptr; }

void WfMFieldWidget::updateElementCount()
{
    const KnMField* const field = shownField();
    if (!field)
        return;
    const QString text
        = centredText(QString::number(field->getNum()) + QStringLiteral(" elements"));
    // A label lays out its text again even if it hasn't changed.
    if (m_labelNumElement->text() != text)
        m_labelNumElement->setText(text);
}

void WfMFieldWidget::load()
{
    CrvFieldEditors::load();

    QFrame* const frame = getFrame();
    drawBox(frame, "frameLineWidth");

    m_globalLayout = new QGridLayout(frame);
    shapeLayout(m_globalLayout, "MFGlobalLayoutMarging", "MFGlobalLayoutSpacing", "m_globalLayout");

    styleTitleLabel(m_label);
    m_globalLayout->addWidget(m_label, 0, 0);
    m_globalLayout->addItem(
        new QSpacerItem(0, 4, QSizePolicy::Minimum, QSizePolicy::Minimum), 1, 0);
    m_globalLayout->addItem(
        new QSpacerItem(6, 0, QSizePolicy::Minimum, QSizePolicy::Minimum), 0, 1);

    buildButtonRow();
    m_globalLayout->addLayout(m_buttonsLayout, 0, 2);
    m_globalLayout->addWidget(m_table, 2, 2);
    m_table->setMinimumHeight(layoutMetric(QStringLiteral("MFTableMinHeightWin")));

    makeConnections();
    languageChange();
}

void WfMFieldWidget::buildButtonRow()
{
    QFrame* const frame = getFrame();
    m_addButton = makeIconButton(frame, "m_addButton", m_addPixmap);
    m_deleteButton = makeIconButton(frame, "m_deleteButton", m_deletePixmap);
    m_upButton = makeIconButton(frame, "m_upButton", m_upPixmap);
    m_downButton = makeIconButton(frame, "m_downButton", m_downPixmap);
    const FieldButtons buttons = makeFieldButtons(frame, m_defaultPixmap, m_ignorePixmap);
    m_defaultButton = buttons.defaultButton;
    m_ignoreButton = buttons.ignoreButton;

    m_buttonsLayout = new QHBoxLayout;
    shapeLayout(m_buttonsLayout, "MFGlobalButtonsLayoutMargin", "MFGlobalButtonsLayoutSpacing",
        "m_buttonsLayout");

    m_manageButtonsLayout = addButtonPair("m_manageButtonsLayout", m_addButton, m_deleteButton);

    m_manageAccessSpacer
        = new QSpacerItem(layoutMetric(QStringLiteral("MFManageAccessSpacerWidth")),
            layoutMetric(QStringLiteral("MFManageAccessSpacerHeight")), QSizePolicy::Expanding,
            QSizePolicy::Minimum);
    m_buttonsLayout->addItem(m_manageAccessSpacer);

    m_accessBox = new AccessButtonPrivate(0, 0, 1, getWidget(), "m_accessBox");
    setInputLabel(m_accessBox, QStringLiteral("row"));
    setLooksOnly(m_accessBox);
    m_accessBox->setMaximumSize(layoutMetric(QStringLiteral("MFAccessWidth")),
        layoutMetric(QStringLiteral("buttonHeight")));
    m_buttonsLayout->addWidget(m_accessBox);

    m_accessMoveSpacer = new QSpacerItem(layoutMetric(QStringLiteral("MFAccessMoveSpacerWidth")),
        layoutMetric(QStringLiteral("MFAccessMoveSpacerHeight")), QSizePolicy::Expanding,
        QSizePolicy::Minimum);
    m_buttonsLayout->addItem(m_accessMoveSpacer);
    m_buttonsLayout->addItem(new QSpacerItem(0, 4, QSizePolicy::Minimum, QSizePolicy::Minimum));

    m_labelNumElement = new QLabel(frame);
    m_labelNumElement->setObjectName(QStringLiteral("m_labelNumElement"));
    updateElementCount();
    m_buttonsLayout->addWidget(m_labelNumElement);

    m_movementButtonLayout = addButtonPair("movementButtonLayout", m_upButton, m_downButton);
    m_fieldButtonLayout = addButtonPair("movementButtonLayout", m_defaultButton, m_ignoreButton);
}

QHBoxLayout* WfMFieldWidget::addButtonPair(
    const char* name, QPushButton* first, QPushButton* second)
{
    auto* const layout = new QHBoxLayout;
    shapeLayout(layout, "MFButtonLayoutMargin", "MFButtonLayoutSpacing", name);
    layout->addWidget(first);
    layout->addWidget(second);
    m_buttonsLayout->addLayout(layout);
    return layout;
}

void WfMFieldWidget::makeConnections()
{
    connect(m_upButton, &QPushButton::clicked, m_table, &WfMFieldTable::swapUpRow);
    connect(m_downButton, &QPushButton::clicked, m_table, &WfMFieldTable::swapDownRow);
    connect(m_deleteButton, &QPushButton::clicked, m_table, &WfMFieldTable::deleteRow);
    connect(m_addButton, &QPushButton::clicked, m_table, &WfMFieldTable::addRow);
    connect(m_accessBox, &QSpinBox::valueChanged, m_table, &WfMFieldTable::showTableRow);
    connectFieldButtons({ m_defaultButton, m_ignoreButton }, this,
        &WfMFieldWidget::setDefaultFieldValue, &WfMFieldWidget::ignoreButtonStateChanged);
}

void WfMFieldWidget::languageChange()
{
    setFieldButtonTexts({ m_defaultButton, m_ignoreButton });
    for (QPushButton* button : { m_addButton, m_deleteButton, m_upButton, m_downButton })
        button->setText(QString());
    m_deleteButton->setToolTip(QStringLiteral("Delete current row"));
    m_accessBox->setToolTip(QStringLiteral("Quick access to rows"));
    m_upButton->setToolTip(QStringLiteral("Bring up current row"));
    m_downButton->setToolTip(QStringLiteral("Bring down current row"));
    m_addButton->setToolTip(QStringLiteral("Add a row"));
}

void WfMFieldWidget::attachField(KnField* field)
{
    // A cell editor that is still open belongs to the previous field.
    m_table->dropCellEdit();
    if (acceptsField(field))
        m_field = static_cast<KnMField*>(field);
    CrvFieldEditors::attachField(field);
}

void WfMFieldWidget::updateFromField()
{
    const KnMField* const field = shownField();
    if (!m_table || !m_updateEnabled || !field)
        return;
    if (!mayWrite(field))
        m_table->dropCellEdit();
    m_table->setNumRows(field->getNum());
    m_table->update();
    m_ignoreButton->setChecked(field->isIgnored() != 0);
    updateElementCount();
}

void WfMFieldWidget::setFieldUpdateEnabled(bool enabled)
{
    m_updateEnabled = enabled;
    // Only a slider in a cell uses the gate: closed before its own write, open after it.
    if (enabled)
        m_table->cellWritten();
}

void WfMFieldWidget::swapFieldValues(int, int) { }

void WfMFieldWidget::setFieldValue(int, int, QString) { }

void WfMFieldWidget::setFieldColor(int, const void*) { }

void WfMFieldWidget::applyChanges() { }

QString WfMFieldWidget::getCellText(int, int) { return QString(); }

int WfMFieldWidget::getCellAlignment() { return Qt::AlignCenter; }

bool WfMFieldWidget::acceptsField(KnField*) { return false; }

void WfMFieldWidget::ignoreButtonStateChanged()
{
    setFieldIgnored(*this, m_field, m_ignoreButton->isChecked());
}

void WfMFieldWidget::setDefaultFieldValue() { setFieldToDefault(*this, m_field); }

bool WfMFieldWidget::hasRow(int row) const
{
    return shows(m_field) && row >= 0 && row < m_field->getNum();
}

bool WfMFieldWidget::mayWriteRow(int row) const { return hasRow(row) && mayWrite(m_field); }

void WfMFieldWidget::shapeColumns(int count)
{
    m_table->setColumnCount(count);
    for (int column = 0; column < count; ++column)
        m_table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Interactive);
    m_table->setNumRows(0);
}

void WfMFieldWidget::shapeColumns(const QStringList& headers)
{
    shapeColumns(static_cast<int>(headers.size()));
    m_table->setHorizontalHeaderLabels(headers);
}
