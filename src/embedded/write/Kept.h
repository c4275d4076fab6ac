#pragma once

namespace kavelin::embedded {

// Gives a value back as it was.
template <class T>
class Kept {
  public:
    explicit Kept(T& value) : objPlace(value), objValue(value) {}
    ~Kept() { objPlace = objValue; }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

  private:
    T& objPlace;
    T objValue;
};

}  // namespace kavelin::embedded
