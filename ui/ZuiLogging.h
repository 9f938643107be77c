// The UI support library's logging category, "zph.ui".
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcZui)
