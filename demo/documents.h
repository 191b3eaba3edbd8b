// The show documents that go with the demo's pictures.
#pragma once

#include <QString>
#include <QStringList>

namespace demo {

/// Writes every document into `folder`, for a show of the bare names `slides` (at least three).
/// False when one could not be written.
bool WriteDocuments(const QString& folder, const QStringList& slides);

}  // namespace demo
