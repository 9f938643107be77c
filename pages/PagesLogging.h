// The wizard pages' logging category, "zph.pages".
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcPages)
