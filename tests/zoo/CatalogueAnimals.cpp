#include "tests/zoo/Animals.h"

QList<Animal> catalogueAnimals()
{
    return {
        {"DuplicateId", 1, {"failed catalog.ids"}, "zoo.sound (SoundOperation): another"},
    };
}
