#pragma once

namespace qly::app {

// The process: chooses the configuration file, brings up the main window
// and the documents, and runs the event loop.
int Main(int argc, char **argv);

} // namespace qly::app
