// A class of a family that has its kind and little else of its own.
#pragma once

#include "brunvik/billframe/catalogue.h"

namespace brunvik {

// The family tells in `made_form` what the form of a class is; it asks the object for what differs.
template <class Family, const Kind& its_kind>
class ClassOf : public Family {
 public:
  const Kind& kind() const override { return its_kind; }

 protected:
  using Family::Family;

  // Made at the first use, and kept for all objects of the class.
  const typename Family::Form& form() const override {
    static const typename Family::Form form = this->made_form();
    return form;
  }
};

}  // namespace brunvik
