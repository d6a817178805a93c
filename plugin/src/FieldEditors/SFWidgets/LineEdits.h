// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QBoxLayout;
class QLineEdit;
class QWidget;

/// The line of an editor that shows a field in one line: a child of `parent`, named "lineEdit",
/// that takes the free space of `layout`. A text of any length fits, so that none is cut on the way
/// from a field and back.
QLineEdit* makeLineEdit(QWidget* parent, QBoxLayout* layout);
