#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// An animal of the zoo and what "oprun validate" has to say of it.
struct Animal
{
    QString name;       ///< of its header and its plug-in
    int status = 0;     ///< the exit status of oprun
    QStringList caught; ///< "result id" of each check that neither passes nor is skipped, in order
    QString detail;     ///< a part of the details of these checks
    QStringList options = {}; ///< further options of the run
};

/// Those with a fault of the file: of loading and accepting it.
QList<Animal> fileAnimals();

/// Those with a fault in what they tell the catalogue.
QList<Animal> catalogueAnimals();

/// Those with a fault in their annotations and properties.
QList<Animal> schemaAnimals();

/// Those with a fault in what they do.
QList<Animal> behaviourAnimals();

/// Those that only an attack brings down.
QList<Animal> hostileAnimals();
