#pragma once

#include <QString>

#include <exception>

namespace common {

// A condition that ends the running command: a value that does not fit its type, a write that fails.
// Only the two guards of platform/guards.h catch it.
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(const QString &reason) : m_reason(reason), m_bytes(reason.toUtf8()) {}

    const QString &reason() const { return m_reason; }
    const char *what() const noexcept override { return m_bytes.constData(); }

private:
    QString m_reason;
    QByteArray m_bytes;
};

} // namespace common
