#pragma once

#include <QString>

/// The second part of the tour: starts a phone with troubles and a program that sends to it, kills the program in the
/// middle, starts it again and has it go on. Returns an exit status, 0 when the phone has received what it must.
int Tour_Of_A_Killed_Program(const QString& picture_folder, const QString& home);

/// The program of that part, in a process of its own: before it is killed, and afterwards. The words by which it is
/// asked for stand in front of the picture folder and the phone.
inline const QString Until_Killed = "--until-killed";
inline const QString After_The_Kill = "--after-the-kill";
int Run_Until_Killed(const QString& picture_folder, const QString& phone_path);
int Run_After_The_Kill(const QString& picture_folder, const QString& phone_path);
