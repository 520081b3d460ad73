// The engine's benchmarks for large texts beyond the common task list: an
// edit near the top (where QScintilla's own per-edit cost is small), a paste
// of 1000 lines, find with case folded, a frame painted with many hidden
// lines under ZS_VARHEIGHT, and closed blocks restored from a block status
// string.
#pragma once

void RegisterSpeedBench();
