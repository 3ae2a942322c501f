#pragma once

#include <QString>

namespace qly::generators {

class FrameModel;

// The <FRAMESET> markup of a layout, walked from frame 0 by adjacency: the
// outer frameset of columns (rows), each holding its frames directly or in
// a frameset of rows (columns). A frame follows another when it starts
// within 10 twips of the other's far edge on exactly the same line; a frame
// that follows none is left out. CR LF line ends, no line end at the close.
QString CompileFrames(const FrameModel &model);

// The page the frame editor's preview shows: the layout, with each frame
// that has no source showing its number and name.
QString FramePreviewPage(const FrameModel &model);

} // namespace qly::generators
