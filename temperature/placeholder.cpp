namespace temperature {}
