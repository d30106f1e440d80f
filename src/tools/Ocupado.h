// What a tool's window shows while one of its jobs runs.
#pragma once

/// Sets a flag while it lives, so that no way out of a job leaves the window locked.
class Ocupado {
  public:
    explicit Ocupado(bool& marca) : marca_(marca) { marca_ = true; }
    ~Ocupado() { marca_ = false; }
    Ocupado(const Ocupado&) = delete;
    Ocupado& operator=(const Ocupado&) = delete;

  private:
    bool& marca_;
};
