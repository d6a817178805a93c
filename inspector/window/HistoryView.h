// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QUndoView>

class CrvUndoSteps;
class KnField;

/// The list of undo steps. The left button jumps to a step, the others do nothing, and the Tab key
/// passes it by: whoever comes by accident must not undo anything. What is undone or redone,
/// here or elsewhere, is selected, so that it can be seen.
class HistoryView : public QUndoView {
    Q_OBJECT
public:
    /// The steps outlive it, or go with the application object.
    explicit HistoryView(CrvUndoSteps* steps, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    static void showField(KnField* field);
};
