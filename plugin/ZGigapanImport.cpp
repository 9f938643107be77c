#include "ZGigapanImport.h"

ZGigapanImport::ZGigapanImport(QObject* parent) : ZImportPlugin(parent) { }

ZGigapanImport::~ZGigapanImport() = default;
