namespace zarvo {}
