// The show documents that go with the demo's pictures.
#pragma once

#include <QString>
#include <QStringList>

namespace demo {

/// Writes every document into `folder`, for a show of the bare names `slides` (at least three) and
/// one of the names `macroSlides`. False when one could not be written.
bool WriteDocuments(const QString& folder, const QStringList& slides,
                    const QStringList& macroSlides);

}  // namespace demo
