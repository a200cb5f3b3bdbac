#include "toolkit/Main_Window.h"

#include "toolkit/Message_Boxes.h"

Main_Window* Main_App_wnd = nullptr;

void Main_Window::Tell_And_Focus(const QString& text, Field field)
{
    Show_MessageBox(text);
    Focus(field);
}
