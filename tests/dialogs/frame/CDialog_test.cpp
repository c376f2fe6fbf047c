#include "support/DialogTest.h"

TEST_F(DialogTest, Placeholder) {}
