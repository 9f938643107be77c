// PeakMemory: how much the process's peak resident memory grew during a piece
// of work, from the kernel's VmHWM (/proc/self/status). The peak is reset to
// the current resident size when the kernel allows it (clear_refs "5");
// otherwise growth is measured from the resident size at the start, which can
// only hide growth that stays below an earlier peak.
#pragma once

#include <QFile>
#include <QtGlobal>

class PeakMemory
{
public:
    /// Starts a measurement now.
    PeakMemory()
    {
        QFile clear(QStringLiteral("/proc/self/clear_refs"));
        m_reset = clear.open(QIODevice::WriteOnly) && clear.write("5") == 1;
        clear.close();
        m_startKb = field("VmRSS:");
        m_startPeakKb = field("VmHWM:");
    }

    /// Megabytes by which the peak has risen above the resident size at the
    /// start. -1 when /proc is not readable.
    qint64 growthMb() const
    {
        const qint64 peak = field("VmHWM:");
        if (peak < 0 || m_startKb < 0)
            return -1;
        return qMax<qint64>(0, peak - m_startKb) / 1024;
    }

    /// False when the peak could not be reset and an earlier peak lies above
    /// the start: growth up to that earlier peak is then invisible.
    bool exact() const { return m_reset || m_startPeakKb <= m_startKb; }

    /// The bound to check growth against for a case whose bound is mb in an
    /// ordinary build. The sanitizers' redzones about double the memory of
    /// many small allocations, and their quarantine holds freed memory back.
    static qint64 allowedMb(qint64 mb)
    {
#ifdef ZPH_SANITIZED
        return 2 * mb + 256;
#else
        return mb;
#endif
    }

    /// A field of /proc/self/status in kB, -1 when absent.
    static qint64 field(const char* name)
    {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
            return -1;
        const QByteArray key(name);
        for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
            if (line.startsWith(key))
                return line.mid(key.size()).trimmed().split(' ').value(0).toLongLong();
        }
        return -1;
    }

private:
    bool m_reset = false;
    qint64 m_startKb = -1;
    qint64 m_startPeakKb = -1;
};
