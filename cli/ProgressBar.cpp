#include "ProgressBar.h"

ProgressBar::ProgressBar(Console& console, const QString& label, int total)
    : m_console(console), m_label(label), m_total(total)
{
}

QString ProgressBar::line(const QString& label, int done, int total)
{
    done = qBound(0, done, qMax(total, 0));
    const int filled = total > 0 ? int(qint64(done) * Width / total) : Width;
    const int digits = QString::number(total).size();
    return QStringLiteral("%1 [%2%3] %4/%5")
        .arg(label, QString(filled, QLatin1Char('#')), QString(Width - filled, QLatin1Char('.')))
        .arg(done, digits)
        .arg(total);
}

void ProgressBar::update(int done)
{
    if (!m_console.interactive || done == m_shown)
        return;
    m_shown = done;
    m_console.out << '\r' << line(m_label, done, m_total);
    m_console.out.flush();
}

void ProgressBar::finish(int done)
{
    if (m_console.interactive)
        m_console.out << '\r';
    m_console.out << line(m_label, done, m_total) << '\n';
    m_console.out.flush();
}
