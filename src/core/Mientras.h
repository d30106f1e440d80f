// What runs now.
#pragma once

/// Sets a flag while it lives, so that no way out of a job leaves it set.
class Mientras {
  public:
    explicit Mientras(bool& marca) : marca_(marca) { marca_ = true; }
    ~Mientras() { marca_ = false; }
    Mientras(const Mientras&) = delete;
    Mientras& operator=(const Mientras&) = delete;

  private:
    bool& marca_;
};
