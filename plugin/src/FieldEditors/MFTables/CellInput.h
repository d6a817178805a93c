// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QLineEdit;
class QWidget;
class WfSlider;

// What a cell editor, a plain line or a slider, holds of a person's input.

/// The line that a person types in; null for an editor without one.
QLineEdit* lineOf(QWidget* editor);
/// Whether a person has typed something that isn't written yet, or drags the scale.
bool isBusy(QWidget* editor);

/// Has the slider write what was typed, if its line accepts it.
void writeTyped(WfSlider* slider);
/// Nothing that happens to the slider from now on reaches its owner.
void silence(const WfSlider* slider);
/// Has the slider write what a person sees in it, and nothing after that. A drag that is cut short
/// counts as released.
void finish(WfSlider* slider);
