// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "WfSFieldWidget.h"

class WfSFImageLabel;

/// Shows a KnSFImage as a thumbnail with a larger popup; it doesn't edit it.
class WfSFImageWidget : public WfSFieldWidget {
public:
    explicit WfSFImageWidget(const char* name = nullptr);

    void load() override;
    void updateFromField() override;
    void applyChanges() override;

private:
    WfSFImageLabel* m_imageBox = nullptr;
};
