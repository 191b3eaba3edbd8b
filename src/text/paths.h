// Rules on path texts. None of them asks the disk.
// Separators: '\' and '/' both separate folders, ':' ends a drive. A path that begins with '/' is
// native: in it only '/' separates.
#pragma once

#include "text/text.h"

namespace text {

/// True for a path that begins with '/'.
bool IsNativePath(TextView path);

/// What follows the last separator or ':'. A path with neither is returned whole.
Text BareName(TextView path);

/// The path up to and with its last separator or ':'; empty when it has neither.
Text FolderPart(TextView path);

/// True when the path holds a separator: then it is taken as it stands, otherwise it is relative.
/// (A ':' alone does not count.)
bool HoldsSeparator(TextView path);

/// The path, with `folder` in front when it holds no separator.
Text WithFolder(TextView folder, TextView path);

/// The folder with exactly one separator of its own kind at the end, unless it ends in one.
Text WithSeparator(TextView folder);

/// The folder without separators at its end; a root keeps its own.
Text WithoutSeparator(TextView folder);

/// `extension` added unless the last four characters hold a '.': ".kvs", ".kvl".
Text WithDefaultExtension(TextView path, TextView extension);

}  // namespace text
