namespace ducts {}
