#ifndef HETEROGENEOUS_CONTAINER_H
#define HETEROGENEOUS_CONTAINER_H

/// Two values of any types, held by value: a part of the toolkit. Pointers in it own nothing.
template <typename Type1, typename Type2>
class Duo {
public:
    Duo(const Type1& t1, const Type2& t2) : t1(t1), t2(t2) {}
    Duo(const Duo&) = default;
    Duo& operator=(const Duo&) = default;
    virtual ~Duo() = default;

    Type1& getFirst() { return t1; }
    const Type1& getFirst() const { return t1; }
    Type2& getSecond() { return t2; }
    const Type2& getSecond() const { return t2; }

    void setFirst(const Type1& first) { t1 = first; }
    void setSecond(const Type2& second) { t2 = second; }

private:
    Type1 t1;
    Type2 t2;
};

#endif
