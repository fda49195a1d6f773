#pragma once

#include <QMainWindow>

#include <memory>

/// Returns a window on the books of a file, which it makes if there is none. Without a name, they are an
/// example, which is not kept.
///
/// \throws UserError if the file cannot be read, or holds something else
std::unique_ptr<QMainWindow> newWindow(QString const& file);
