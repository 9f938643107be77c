#include "ZClaussImport.h"

ZClaussImport::ZClaussImport(QObject* parent) : ZImportPlugin(parent) { }

ZClaussImport::~ZClaussImport() = default;
