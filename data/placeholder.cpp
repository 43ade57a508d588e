namespace data {}
