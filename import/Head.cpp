#include "Head.h"

namespace {

const struct
{
    Head head;
    const char* name;
} Names[] = {
    { Head::Papywizard, "papywizard" },
    { Head::VRDrive2, "vrdrive2" },
    { Head::Clauss, "clauss" },
    { Head::Gigapan, "gigapan" },
};

} // namespace

QString HeadName(Head head)
{
    for (const auto& entry : Names) {
        if (entry.head == head)
            return QLatin1String(entry.name);
    }
    return QString();
}

bool HeadFromName(const QString& name, Head* head)
{
    for (const auto& entry : Names) {
        if (name == QLatin1String(entry.name)) {
            *head = entry.head;
            return true;
        }
    }
    return false;
}
