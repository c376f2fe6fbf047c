#pragma once
// One TempDir for every test program: two classes of one name in one program would break the
// one-definition rule.
#include "support/temp_dir.h"
