#pragma once

enum class MouseClickButton { left, right };
