// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <memory>
#include <vector>

class QTableView;

/// One way to show an array in a table, in a window of its own.
class ArrayContender {
public:
    virtual ~ArrayContender() = default;

    virtual const char* name() const = 0;
    virtual QTableView* view() const = 0;
    /// Makes the array that the next `select` shows.
    virtual void prepare(int rows) = 0;

    // What a person waits for. Each leaves the painting to `paint`.
    virtual void select() = 0;
    /// Another part of the program has changed a value.
    virtual void refresh() = 0;
    virtual void jump(int row);
    virtual void edit(int row) = 0;
    /// Takes the last edit back. Nothing in a table that has no undo.
    virtual void undo() { }
    /// Adds a row behind the current one.
    virtual void add() = 0;
    /// Deletes the current row.
    virtual void remove() = 0;

    /// Returns when everything visible of the table is on the screen.
    void paint() const;
    void show() const;
};

/// The bare table, the editor of KnMFFloat, the hand-made model, the filled table, and the bare
/// table with texts in its visible cells.
std::vector<std::unique_ptr<ArrayContender>> makeContenders();

/// The bare table with four columns, and the editors of values of several numbers: three columns,
/// four with the swatch, and the overview of matrices; the bare table again, with texts.
std::vector<std::unique_ptr<ArrayContender>> makeEditors();
