#pragma once

#include "history/Clipboard.h"

// The desktop clipboard (not the primary selection) through QClipboard.
class QtClipboard : public Clipboard {
public:
    bool setText(const QString &text) override;
};
