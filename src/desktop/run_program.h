// A whole run in windows, from the first to the last.
#pragma once

class QApplication;

namespace vicetoll {

// Runs the program; returns its exit status: 0, or 1 after a fatal fault.
int RunProgram(QApplication& application);

}  // namespace vicetoll
