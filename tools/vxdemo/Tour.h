// The offscreen tour: every dialog and state of the sample tool, one picture each, for a person
// to look at without a display, and for the pipeline to check.
#pragma once

#include <QString>

// Before the application exists: the offscreen platform (unless another is named) and a
// settings home of the tour's own inside `folder`.
void PrepareTour(const QString& folder);
// Writes the pictures and their index into `folder`; 0 when every picture was written.
int RunTour(const QString& folder);
