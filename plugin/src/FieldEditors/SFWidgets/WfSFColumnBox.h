// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

#include <vector>

/// What distinguishes the kinds of column box: names of metrics, object names of the parts.
struct ColumnBoxStyle {
    const char* spacingMetric; ///< between columns
    const char* marginMetric; ///< around them
    const char* columnSpacingMetric; ///< between a label and its input
    const char* columnName;
    const char* labelName;
    const char* inputName;
};

/// Base of the editors that show a labelled input for each component: columns side by side, each a
/// label above an input. It stands between WfSFieldWidget and the boxes of lines and of spin boxes,
/// so that columns are built in one place; inputs and labels are arrays, since every loop over them
/// serves two, three and four components.
class WfSFColumnBox : public WfSFieldWidget {
    Q_OBJECT
public:
    void load() override;

    /// Sets the texts of the labels; `nameArray` has a name for each column.
    void setLabels(const QString* nameArray);

protected:
    /// `style` is kept by reference.
    WfSFColumnBox(int columns, const ColumnBoxStyle& style, const char* name);

    /// Makes the input of the next column, `height` pixels high, with the edition frame as parent,
    /// and connects it.
    virtual QWidget* makeInput(int height) = 0;

private:
    void addColumn();

    int m_columns;
    const ColumnBoxStyle& m_style;
    std::vector<QLabel*> m_labels; // children of the edition frame
    std::vector<QWidget*> m_inputs; // the same
};
