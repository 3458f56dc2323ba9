#include "tests/zoo/Animals.h"

QList<Animal> catalogueAnimals()
{
    return {
        {"BlankIcon",
         1,
         {"failed catalog.iconPictures"},
         "\":/zoo/blank.svg\" shows nothing at 16"},
        {"BrokenIcon", 1, {"failed catalog.iconPictures"}, "\":/zoo/broken.svg\" is no picture"},
        {"DisagreeingManifest",
         1,
         {"failed catalog.manifest"},
         "manifest.version: \"1.1.0\"; version gives \"1.0.0\""},
        {"DuplicateId", 1, {"failed catalog.ids"}, "zoo.sound (SoundOperation): another"},
        {"EmptyDescription", 1, {"failed catalog.texts"}, "zoo.sound: description is empty"},
        {"EmptyId", 1, {"failed catalog.ids"}, "SoundOperation: typeId is empty"},
        {"EmptyName", 1, {"failed catalog.texts"}, "zoo.sound: typeName is empty"},
        {"IconOutside", 1, {"failed catalog.icons"}, "\"/zoo/sound.svg\"; expected a resource"},
        {"MalformedPluginId", 1, {"failed catalog.identity"}, "pluginId: \"zoo\""},
        {"MalformedVersion", 1, {"failed catalog.identity"}, "version: \"1.0\""},
        {"MissingIcon",
         1,
         {"failed catalog.icons"},
         "zoo.sound: icon: \":/zoo/missing.svg\" cannot"},
        {"MissingRootWeight", 1, {"failed catalog.weights"}, "rootOrder: no weight for \"Zoo\""},
        {"MissingWeight", 1, {"failed catalog.weights"}, "typeOrder: no weight for \"zoo.sound\""},
        {"NoPrototypes", 0, {"warning catalog.prototypes"}, "gives none"},
        {"NullPrototype", 1, {"failed catalog.prototypes"}, "first call, element 1: null"},
        {"ParentedPrototype", 1, {"failed catalog.prototypes"}, "zoo.sound has a parent"},
        {"SameObjects", 1, {"failed catalog.prototypes"}, "gives the object of the first"},
        {"WeightForNothing", 1, {"failed catalog.weights"}, "\"zoo.gone\", which no prototype has"},
        {"WrongPrefix", 1, {"failed catalog.ids"}, "does not begin with the prefix \"zoo.\""},
    };
}
