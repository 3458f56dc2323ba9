#pragma once

#include <QString>

class OperationCatalog;

/// The versions of the program, of Qt and of the plug-ins with the files they come from.
QString aboutText(const OperationCatalog &catalog);
