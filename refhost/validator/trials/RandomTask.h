#pragma once

#include "refhost/engine/Task.h"

class RandomSource;
class Specimen;

/// A task of one step with random settings, and variables for it. Most of the settings are such as
/// an editor lets a user choose, some are what only a file can hold.
Task randomTask(RandomSource &source, Specimen &specimen);
