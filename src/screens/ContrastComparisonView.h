// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/ContrastPair.h"
#include "model/PickedColor.h"

#include <QWidget>
#include <array>
#include <optional>

class CapsuleLabel;
class ElidedLabel;
class QAbstractButton;
class QComboBox;

// The detail screen's comparison of its colour with another colour of the history, one as text
// and the other as the background under it: a menu of the pinned and recent colours, a button
// that swaps the two roles, a preview, the WCAG 2 ratio and grades, and the APCA Lc with what it
// is enough for. Each result reads as one sentence to a screen reader.
class ContrastComparisonView : public QWidget {
    Q_OBJECT
public:
    // `history`: every colour, newest first, the shown one among them. The other colour starts
    // as the one picked just before the shown one, as the text on the shown background: pick
    // the text, pick the background, open it.
    ContrastComparisonView(
        const PickedColor &shown, const QList<PickedColor> &history, QWidget *parent = nullptr);

    // The latest colour picked before `shown`; for the oldest, the newest other one.
    static std::optional<PickedColor> defaultOther(
        const PickedColor &shown, const QList<PickedColor> &history);

    // Empty when the history holds no other colour.
    QComboBox *otherMenu() const { return m_menu; }
    QAbstractButton *swapButton() const { return m_swap; }
    const ContrastPair &pair() const { return m_pair; }
    bool isShownText() const { return m_isShownText; }
    // What a screen reader reads of the results, top to bottom.
    QStringList spokenResults() const;

private:
    // Measures the pair as the menu and the swap now say, and shows it.
    void measure();
    QWidget *addResultRow(const QString &label, CapsuleLabel **capsule);

    PickedColor m_shown;
    QList<PickedColor> m_others; // in the menu's order: pinned, then recent
    bool m_isShownText = false;
    ContrastPair m_pair;
    QComboBox *m_menu = nullptr;
    QAbstractButton *m_swap = nullptr;
    QWidget *m_preview = nullptr;
    ElidedLabel *m_roles = nullptr;
    ElidedLabel *m_ratio = nullptr;
    std::array<QWidget *, 4> m_rows {}; // normal text, large text, non-text, APCA
    std::array<CapsuleLabel *, 3> m_grades {};
    std::array<QString, 3> m_gradeNames;
    ElidedLabel *m_lc = nullptr;
    ElidedLabel *m_reading = nullptr;
};
