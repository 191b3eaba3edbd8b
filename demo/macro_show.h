// The slides of the show that uses every word of the macro language.
#pragma once

#include <QString>
#include <QStringList>

namespace demo {

/// Copies a file over another. False when that failed.
bool CopyOver(const QString& from, const QString& to);

/// Puts the macro files of macros/ into `folder`, a picture beside each (copies of `pictures`, bare
/// names of that folder) and what they show and play. The slides' bare names; empty when something
/// could not be written.
QStringList MakeMacroSlides(const QString& folder, const QStringList& pictures);

}  // namespace demo
