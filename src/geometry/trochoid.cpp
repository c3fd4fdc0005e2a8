// (to come)
