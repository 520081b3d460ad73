// Replace all through the editors' shared find and replace logic, and the
// one undo that takes it back, on the bench's SQL text.
#pragma once

void RegisterReplaceBench();
