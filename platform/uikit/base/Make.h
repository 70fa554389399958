// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

/// Makes a controller or a cell: shared, without QObject parent, and destroyed by `deleteLater`,
/// so that the last reference may be dropped on any thread, and from inside its own action.
template <typename T, typename... Arguments>
[[nodiscard]] std::shared_ptr<T> make(Arguments &&...arguments)
{
    return std::shared_ptr<T>(new T(std::forward<Arguments>(arguments)...),
                              [](T *object) { object->deleteLater(); });
}

/// The shared reference to `self`, an object that `make` made.
template <typename T>
[[nodiscard]] std::shared_ptr<T> strong(T *self)
{
    return std::static_pointer_cast<T>(self->shared_from_this());
}
