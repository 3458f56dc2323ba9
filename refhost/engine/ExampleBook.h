#pragma once

#include "refhost/engine/WorkedExample.h"

#include <QMap>

#include <optional>

class OperationCatalog;

/// What there is to say about one operation.
struct OperationPage
{
    QString about;
    QList<WorkedExample> examples;
};

/// The worked examples that come with plug-ins: for a plug-in "libX.so" the file
/// "libX.examples.json" beside it.
class ExampleBook
{
public:
    /// Reads the files of all plug-ins of the catalogue; a plug-in without one has no pages. A page
    /// of an operation the catalogue does not have, an unknown member and a member of the wrong
    /// kind are problems.
    static Result<ExampleBook> read(const OperationCatalog &catalog);

    /// The page of an operation, empty when there is none.
    OperationPage page(const QString &typeId) const { return m_pages.value(typeId); }

private:
    std::optional<Problem> add(const JsonObject &json, const OperationCatalog &catalog);

    QMap<QString, OperationPage> m_pages;
};
