// SPDX-FileCopyrightText: 2026 The WZT Companion authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QList>

#include <optional>

/// Reads a long JSON list piece by piece, the last elements first, and gives back the memory of
/// what was read, so that the text and its elements are never there in full at the same time.
///
///     JSONListReader reader(std::move(text));
///     while (reader.hasMore()) {
///         const auto elements = reader.takeLast();
///
/// If no call returns nil, the pieces together are the list that QJsonDocument would read.
/// Otherwise QJsonDocument would refuse the text, or it is no list.
class JSONListReader {
public:
    /// A `text` that is shared is copied.
    explicit JSONListReader(QByteArray text);

    [[nodiscard]] bool hasMore() const { return m_hasMore; }
    /// The last elements that are left, in order; nil if the text is no list. An empty list has one
    /// piece without elements.
    [[nodiscard]] std::optional<QJsonArray> takeLast();

private:
    QByteArray m_text;
    /// The places of the commas between two pieces.
    QList<qsizetype> m_commas;
    bool m_hasMore = true;
    bool m_wasTaken = false;
};
