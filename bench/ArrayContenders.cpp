// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayContenders.h"

#include "CrvServices.h"
#include "KnMFields.h"
#include "KnSensorQueue.h"
#include "WfMFColorWidget.h"
#include "WfMFFloatWidget.h"
#include "WfMFMatrixWidget.h"
#include "WfMFVec3fWidget.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFrame>
#include <QItemDelegate>
#include <QMainWindow>
#include <QPainter>
#include <QSpinBox>
#include <QTableWidget>
#include <QUndoStack>

namespace {

constexpr QSize windowSize(400, 600); // pixels

/// The editor of a field class.
template <class Editor, class Field>
class EditorContender : public ArrayContender {
public:
    explicit EditorContender(const char* name)
        : m_name(name)
    {
        m_editor.load();
        const QFrame* const frame = m_editor.getFrame();
        m_table = frame->findChild<WfMFieldTable*>();
        m_accessBox = frame->findChild<QSpinBox*>(QStringLiteral("m_accessBox"));
    }
    ~EditorContender() override
    {
        undoStack().clear();
        m_editor.deactivate();
        m_editor.unload();
        // The frame belongs to the editor, so the window gives it back, as a dock does.
        m_window.takeCentralWidget();
    }

    const char* name() const override { return m_name; }
    QTableView* view() const override { return m_table; }
    void prepare(int rows) override
    {
        undoStack().clear();
        m_next = m_next == &m_fields[0] ? &m_fields[1] : &m_fields[0];
        m_next->setNum(rows);
    }

    void select() override
    {
        m_editor.deactivate();
        m_editor.setEditedObject(m_next);
        m_editor.activate();
    }
    void refresh() override
    {
        m_next->set1Value(0, (*m_next)[1]);
        KnSensorQueue::getInstance().process();
    }
    void jump(int row) override { m_accessBox->setValue(row + 1); }
    void edit(int row) override
    {
        m_editor.setFieldValue(row, 0, QStringLiteral("0.25"));
        KnSensorQueue::getInstance().process();
    }
    void undo() override
    {
        undoStack().undo();
        KnSensorQueue::getInstance().process();
    }
    void add() override
    {
        m_table->addRow();
        KnSensorQueue::getInstance().process();
    }
    void remove() override
    {
        m_table->deleteRow();
        KnSensorQueue::getInstance().process();
    }

private:
    static QUndoStack& undoStack() { return *CrvServices::getInstance()->getUndoStack(); }

    const char* m_name;
    Field m_fields[2];
    Field* m_next = nullptr; // one of them: shown since the last select
    Editor m_editor;
    QMainWindow m_window;
    WfMFieldTable* m_table; // of the editor
    QSpinBox* m_accessBox; // of the editor
};

/// A table widget that is told how many rows there are, but not what they hold.
class BareContender : public ArrayContender {
public:
    explicit BareContender(int columns = 1)
    {
        m_table.setColumnCount(columns);
        m_table.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }

    const char* name() const override { return "bare table"; }
    QTableView* view() const override { return &m_table; }
    void prepare(int rows) override { m_rows = rows; }
    void select() override
    {
        m_table.setRowCount(0);
        m_table.setRowCount(m_rows);
    }
    void refresh() override { m_table.viewport()->update(); }
    void edit(int) override { m_table.viewport()->update(); }
    void add() override { m_table.insertRow(m_table.currentRow() + 1); }
    void remove() override { m_table.removeRow(m_table.currentRow()); }

protected:
    mutable QTableWidget m_table;
    int m_rows = 0;
};

/// The same table with a text in each visible cell, which is the least that shows the values.
class PaintedContender : public BareContender {
public:
    explicit PaintedContender(int columns = 1)
        : BareContender(columns)
    {
        m_table.setItemDelegate(&m_delegate);
    }

    const char* name() const override { return "painted table"; }

private:
    class Delegate : public QItemDelegate {
    public:
        void paint(QPainter* painter, const QStyleOptionViewItem& option,
            const QModelIndex& index) const override
        {
            const QString text = QString::number(index.row() % 2 == 0 ? 0.5 : 0.25);
            painter->drawText(option.rect, Qt::AlignCenter, text);
        }
    };

    Delegate m_delegate;
};

/// The same table with an item for each value.
class FilledContender : public BareContender {
public:
    const char* name() const override { return "filled table"; }
    void select() override
    {
        BareContender::select();
        for (int row = 0; row < m_rows; ++row)
            setItem(row, 0.5F);
    }
    void refresh() override
    {
        for (int row = 0; row < m_table.rowCount(); ++row)
            m_table.item(row, 0)->setText(QString::number(0.5));
    }
    void edit(int row) override { m_table.item(row, 0)->setText(QString::number(2.5)); }
    void add() override
    {
        const int row = m_table.currentRow() + 1;
        m_table.insertRow(row);
        setItem(row, 0);
    }

private:
    void setItem(int row, float value)
    {
        // The table owns its items.
        m_table.setItem(row, 0, new QTableWidgetItem(QString::number(value)));
    }
};

class FloatModel : public QAbstractTableModel {
public:
    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_values.size());
    }
    int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole
            ? QString::number(m_values[static_cast<std::size_t>(index.row())])
            : QVariant();
    }
    void setValues(std::vector<float> values)
    {
        beginResetModel();
        m_values = std::move(values);
        endResetModel();
    }
    void setValue(int row, float value)
    {
        m_values[static_cast<std::size_t>(row)] = value;
        Q_EMIT dataChanged(index(row, 0), index(row, 0));
    }
    void insert(int row)
    {
        beginInsertRows(QModelIndex(), row, row);
        m_values.insert(m_values.begin() + row, 0.0F);
        endInsertRows();
    }
    void remove(int row)
    {
        beginRemoveRows(QModelIndex(), row, row);
        m_values.erase(m_values.begin() + row);
        endRemoveRows();
    }

private:
    std::vector<float> m_values;
};

class ModelContender : public ArrayContender {
public:
    ModelContender() { m_view.setModel(&m_model); }

    const char* name() const override { return "hand-made model"; }
    QTableView* view() const override { return &m_view; }
    void prepare(int rows) override { m_next.assign(static_cast<std::size_t>(rows), 0.5F); }
    void select() override { m_model.setValues(std::move(m_next)); }
    void refresh() override { m_model.setValue(0, 1.5F); }
    void edit(int row) override { m_model.setValue(row, 2.5F); }
    void add() override { m_model.insert(m_view.currentIndex().row() + 1); }
    void remove() override { m_model.remove(m_view.currentIndex().row()); }

private:
    FloatModel m_model;
    mutable QTableView m_view;
    std::vector<float> m_next;
};

} // namespace

void ArrayContender::jump(int row)
{
    const QModelIndex index = view()->model()->index(row, 0);
    view()->scrollTo(index, QAbstractItemView::EnsureVisible);
    view()->setCurrentIndex(index);
}

void ArrayContender::paint() const
{
    // A table lays itself out in a turn of its own, and draws what has moved in the next one.
    do
        QApplication::sendPostedEvents();
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents));
}

void ArrayContender::show() const
{
    QWidget* const window = view()->window();
    window->resize(windowSize);
    window->show();
    paint();
}

std::vector<std::unique_ptr<ArrayContender>> makeContenders()
{
    std::vector<std::unique_ptr<ArrayContender>> all;
    all.push_back(std::make_unique<BareContender>());
    all.push_back(std::make_unique<EditorContender<WfMFFloatWidget, KnMFFloat>>("MFFloat"));
    all.push_back(std::make_unique<ModelContender>());
    all.push_back(std::make_unique<FilledContender>());
    all.push_back(std::make_unique<PaintedContender>());
    return all;
}

std::vector<std::unique_ptr<ArrayContender>> makeEditors()
{
    std::vector<std::unique_ptr<ArrayContender>> all;
    all.push_back(std::make_unique<BareContender>(4));
    all.push_back(std::make_unique<EditorContender<WfMFVec3fWidget, KnMFVec3f>>("MFVec3f"));
    all.push_back(std::make_unique<EditorContender<WfMFColorWidget, KnMFColor>>("MFColor"));
    all.push_back(std::make_unique<EditorContender<WfMFMatrixWidget, KnMFMatrix>>("MFMatrix"));
    all.push_back(std::make_unique<PaintedContender>(4));
    return all;
}
