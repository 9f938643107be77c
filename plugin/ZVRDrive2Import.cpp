#include "ZVRDrive2Import.h"

ZVRDrive2Import::ZVRDrive2Import(QObject* parent) : ZImportPlugin(parent) { }

ZVRDrive2Import::~ZVRDrive2Import() = default;
