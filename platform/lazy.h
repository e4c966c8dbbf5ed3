// A table that is made when somebody first writes to a place of it, for the many that stay empty for a whole
// game. Until then it reads as a new one.
#pragma once

#include <memory>
#include <utility>

/// `Table` is an Array. A copy has a table of its own.
template <typename Table>
class Lazy {
  public:
    static constexpr int Lower = Table::Lower;
    static constexpr int Upper = Table::Upper;

    Lazy() = default;
    Lazy(const Lazy& other) : made(other.made ? std::make_unique<Table>(*other.made) : nullptr) {}
    Lazy(Lazy&& other) noexcept = default;
    Lazy& operator=(const Lazy& other) {
        if (made && other.made)
            *made = *other.made;
        else if (this != &other)
            made = other.made ? std::make_unique<Table>(*other.made) : nullptr;
        return *this;
    }
    Lazy& operator=(Lazy&& other) noexcept = default;
    ~Lazy() = default;

    auto& operator[](int index) { return Made()[index]; }
    const auto& operator[](int index) const { return Read()[index]; }

    auto begin() { return Made().begin(); }
    auto end() { return Made().end(); }
    auto begin() const { return Read().begin(); }
    auto end() const { return Read().end(); }

    bool operator==(const Lazy& other) const { return (!made && !other.made) || Read() == other.Read(); }

  private:
    Table& Made() {
        if (!made) made = std::make_unique<Table>();
        return *made;
    }
    const Table& Read() const {
        static const Table nothing;
        return made ? *made : nothing;
    }

    std::unique_ptr<Table> made;
};
