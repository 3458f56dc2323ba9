#pragma once

#include <QString>

#include <memory>

class QMimeData;

// An operation on its way from the catalogue to the steps.

/// The kind of data that holds the type identifier of an operation, in UTF-8.
QString operationMimeType();

std::unique_ptr<QMimeData> mimeFromOperation(const QString &typeId);

/// The type identifier in it, empty when there is none.
QString operationFromMime(const QMimeData &mime);
