// The log category of the plug-in frame: library entry, catalogue and the
// import plug-in objects.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcZPanoHeadPlugin)
