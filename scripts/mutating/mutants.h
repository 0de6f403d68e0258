// Included by every source of a tree of mutants that has been changed: the switches of the changes. VANTELLE_MUTANT is
// the one that is on, and to the file that VANTELLE_REACHED names each process adds the numbers of those it asked for.
#pragma once

#include <concepts>
#include <cstdio>
#include <cstdlib>
#include <type_traits>
#include <utility>

namespace VantelleMutants {

inline constexpr int Most = 1000000;
inline bool Reached[Most];
inline int Active = -2;

inline void SaveReached() {
    std::FILE* file = std::fopen(std::getenv("VANTELLE_REACHED"), "a");
    if (file == nullptr) return;
    for (int i = 0; i < Most; ++i) {
        if (Reached[i]) std::fprintf(file, "%d\n", i);
    }
    std::fclose(file);
}

inline void Begin() {
    const char* active = std::getenv("VANTELLE_MUTANT");
    Active = active != nullptr ? std::atoi(active) : -1;
    if (std::getenv("VANTELLE_REACHED") != nullptr) std::atexit(&SaveReached);
}

inline bool Ask(int number) {
    if (Active == -2) Begin();
    Reached[number] = true;
    return number == Active;
}

constexpr bool IsOn(int number) { return !std::is_constant_evaluated() && Ask(number); }

// `a < Relation<7, '<'>{} < b` groups as `a < b` does, and so for the other levels of precedence.
template <int number, int sign>
struct Relation {};
template <int number, int sign>
struct Equality {};
template <int number, int sign>
struct Sum {};
template <int number, int sign>
struct Product {};

template <class A, class Op>
struct Left {
    A value;
};

#define VNT_OPERATOR(Proxy, symbol)                                                        \
    template <class A, int number, int sign>                                               \
    constexpr Left<A&&, Proxy<number, sign>> operator symbol(A&& a, Proxy<number, sign>) { \
        return {std::forward<A>(a)};                                                       \
    }                                                                                      \
    template <class A, int number, int sign, class B>                                      \
    constexpr auto operator symbol(Left<A, Proxy<number, sign>> a, B&& b) {                \
        return Apply##Proxy<number, sign>(std::forward<A>(a.value), std::forward<B>(b));   \
    }

template <int number, int sign, class A, class B>
constexpr auto ApplyRelation(A&& a, B&& b) {
    if constexpr (sign == '<' * 10)
        return IsOn(number) ? a <= b : a < b;
    else if constexpr (sign == '<' * 10 + 1)
        return IsOn(number) ? a < b : a <= b;
    else if constexpr (sign == '>' * 10)
        return IsOn(number) ? a >= b : a > b;
    else
        return IsOn(number) ? a > b : a >= b;
}
template <int number, int sign, class A, class B>
constexpr auto ApplyEquality(A&& a, B&& b) {
    if constexpr (sign == '=' * 10 + 1)
        return IsOn(number) != (a == b);
    else
        return IsOn(number) != (a != b);
}
template <int number, int sign, class A, class B>
constexpr auto ApplySum(A&& a, B&& b) {
    if constexpr (sign == '+' * 10) {
        if constexpr (requires {
                          { a - b } -> std::same_as<decltype(a + b)>;
                      })
            return IsOn(number) ? a - b : a + b;
        else if constexpr (requires { decltype(a + b)(a); })
            return IsOn(number) ? decltype(a + b)(a) : a + b;
        else
            return a + b;
    } else {
        if constexpr (requires {
                          { a + b } -> std::same_as<decltype(a - b)>;
                      })
            return IsOn(number) ? a + b : a - b;
        else
            return a - b;
    }
}
template <int number, int sign, class A, class B>
constexpr auto ApplyProduct(A&& a, B&& b) {
    if constexpr (sign == '*' * 10)
        return IsOn(number) ? a + b : a * b;
    else if constexpr (sign == '/' * 10)
        return IsOn(number) ? a * b : a / b;
    else
        return IsOn(number) ? a / b : a % b;
}
VNT_OPERATOR(Relation, <)
VNT_OPERATOR(Equality, ==)
VNT_OPERATOR(Sum, +)
VNT_OPERATOR(Product, *)

}  // namespace VantelleMutants

#define VNT_MUTANT(number) ::VantelleMutants::IsOn(number)
#define VNT_ASK(number) ::VantelleMutants::Ask(number)
#define VNT_RELATION(number, sign) \
    ::VantelleMutants::Relation<number, sign> {}
#define VNT_EQUALITY(number, sign) \
    ::VantelleMutants::Equality<number, sign> {}
#define VNT_SUM(number, sign) \
    ::VantelleMutants::Sum<number, sign> {}
#define VNT_PRODUCT(number, sign) \
    ::VantelleMutants::Product<number, sign> {}
