// StitchProgressWidget: what a running stitch shows: one progress bar over
// the steps with the running step's name, the time since the stitch started,
// and a Cancel button.
#pragma once

#include "StitchPipeline.h"

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;

class StitchProgressWidget : public QWidget
{
    Q_OBJECT

public:
    explicit StitchProgressWidget(QWidget* parent = nullptr);

    /// Empties the bar and starts the clock.
    void Begin();
    /// Shows a step's start or end.
    void ShowStep(const StitchPipeline::StepEvent& event);
    /// Stops the clock.
    void End();

    /// The step line as shown: "Step 3 of 7: Removing wrong points", or with
    /// the pictures done of a step that counts them: "Step 7 of 9: Remapping
    /// 12 of 30".
    QString StepText() const;
    QPushButton* CancelButton() const { return m_pbCancel; }

    /// The step's name in the user's language.
    static QString StepName(const QString& englishName);

signals:
    void CancelRequested();

private:
    /// A step's share of the bar.
    static constexpr int PartsPerStep = 100;

    void UpdateClock();

    QProgressBar* m_bar = nullptr;
    QLabel* m_lbStep = nullptr;
    QLabel* m_lbElapsed = nullptr;
    QPushButton* m_pbCancel = nullptr;
    QTimer* m_clock = nullptr;
    QElapsedTimer m_elapsed;
};
