// Compiled once for all of the windows.
#pragma once

#include <QtWidgets>

#include <functional>
#include <string>
#include <vector>
