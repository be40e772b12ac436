// Between the paths of the model and the texts of the desktop, on every platform without loss.

#pragma once

#include <QString>

#include <filesystem>

std::filesystem::path pathOf(const QString& text);
QString textOfPath(const std::filesystem::path& path);
