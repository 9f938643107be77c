#include "StitchProgressWidget.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

StitchProgressWidget::StitchProgressWidget(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("StitchProgressWidget"));
    m_lbStep = new QLabel(this);
    m_lbStep->setObjectName(QStringLiteral("m_lbStep"));
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("m_bar"));
    m_bar->setTextVisible(false);
    m_lbElapsed = new QLabel(this);
    m_lbElapsed->setObjectName(QStringLiteral("m_lbElapsed"));
    m_pbCancel = new QPushButton(tr("Cancel stitch"), this);
    m_pbCancel->setObjectName(QStringLiteral("m_pbCancelStitch"));
    connect(m_pbCancel, &QPushButton::clicked, this, [this] {
        m_pbCancel->setEnabled(false);
        m_lbStep->setText(tr("Stopping..."));
        emit CancelRequested();
    });
    m_clock = new QTimer(this);
    m_clock->setInterval(500);
    connect(m_clock, &QTimer::timeout, this, &StitchProgressWidget::UpdateClock);

    auto* line = new QHBoxLayout;
    line->addWidget(m_bar, 1);
    line->addWidget(m_lbElapsed);
    line->addWidget(m_pbCancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lbStep);
    layout->addLayout(line);
}

QString StitchProgressWidget::StepName(const QString& englishName)
{
    return QCoreApplication::translate("StitchPipeline", englishName.toUtf8().constData());
}

void StitchProgressWidget::Begin()
{
    m_bar->setRange(0, 1);
    m_bar->setValue(0);
    m_lbStep->setText(tr("Checking the project..."));
    m_pbCancel->setEnabled(true);
    m_elapsed.start();
    UpdateClock();
    m_clock->start();
}

void StitchProgressWidget::ShowStep(const StitchPipeline::StepEvent& event)
{
    // Each step is PartsPerStep on the bar; a step that counts its pictures
    // fills its share as they are done.
    const int count = qMax(1, event.count);
    int parts = event.phase == StitchPipeline::StepEvent::Started ? 0 : PartsPerStep;
    if (event.phase == StitchPipeline::StepEvent::Progressed)
        parts = event.total > 0 ? int(qint64(PartsPerStep) * event.done / event.total) : 0;
    m_bar->setRange(0, count * PartsPerStep);
    m_bar->setValue((event.step - 1) * PartsPerStep + parts);
    if (!m_pbCancel->isEnabled())
        return;
    QString name = StepName(event.name);
    if (event.phase == StitchPipeline::StepEvent::Progressed)
        name = tr("%1 %2 of %3").arg(name).arg(event.done).arg(event.total);
    m_lbStep->setText(tr("Step %1 of %2: %3").arg(event.step).arg(event.count).arg(name));
}

void StitchProgressWidget::End()
{
    m_clock->stop();
    UpdateClock();
}

QString StitchProgressWidget::StepText() const
{
    return m_lbStep->text();
}

void StitchProgressWidget::UpdateClock()
{
    const qint64 seconds = m_elapsed.isValid() ? m_elapsed.elapsed() / 1000 : 0;
    m_lbElapsed->setText(tr("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0')));
}
