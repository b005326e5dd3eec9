#pragma once

namespace test
{

/// A file descriptor of its own, closed with the object.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

} // namespace test
