#include "ZMerlinImport.h"

ZMerlinImport::ZMerlinImport(QObject* parent) : ZImportPlugin(parent) { }

ZMerlinImport::~ZMerlinImport() = default;
