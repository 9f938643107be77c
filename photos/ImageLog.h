// The log category of the photographs' reading, "zph.host.image": why a file
// is refused (warnings), what exiv2 and the decoders reported (info, debug).
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcImage)
