#include "refhost/workbench/files/Questions.h"

Questions::~Questions() = default;
