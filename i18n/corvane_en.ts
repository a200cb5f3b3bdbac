<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Bubble_Words</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %n parts instead of %2.</source>
        <translation>
            <numerusform>%1: %n part instead of %2.</numerusform>
            <numerusform>%1: %n parts instead of %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of %1, %2 left in the last</source>
        <translation>
            <numerusform>%n part of %1, %2 left in the last</numerusform>
            <numerusform>%n parts of %1, %2 left in the last</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Contact_Desk</name>
    <message numerus="yes">
        <source>%1 added, %n rows not used.</source>
        <translation>
            <numerusform>%1 added, %n row not used.</numerusform>
            <numerusform>%1 added, %n rows not used.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rows were not sent. Of the first, %1.</source>
        <translation>
            <numerusform>%n row was not sent: %1.</numerusform>
            <numerusform>%n rows were not sent. Of the first, %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CorvaneAppDelegate</name>
    <message numerus="yes">
        <source>%n recipients removed.</source>
        <translation>
            <numerusform>%n recipient removed.</numerusform>
            <numerusform>%n recipients removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>messages wait</source>
        <translation>
            <numerusform>messages wait</numerusform>
            <numerusform>messages wait</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Delayed_Delivery</name>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n second</numerusform>
            <numerusform>%n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Hand_Over_Wnd</name>
    <message numerus="yes">
        <source>Handed over: %n messages, in %1. Nothing was sent.</source>
        <translation>
            <numerusform>Handed over: %n message, in %1. Nothing was sent.</numerusform>
            <numerusform>Handed over: %n messages, in %1. Nothing was sent.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Import_Strip</name>
    <message numerus="yes">
        <source>%1 added, %n lines not used.</source>
        <translation>
            <numerusform>%1 added, %n line not used.</numerusform>
            <numerusform>%1 added, %n lines not used.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Kept_Receipts</name>
    <message numerus="yes">
        <source>%1: %n recipients</source>
        <translation>
            <numerusform>%1: %n recipient</numerusform>
            <numerusform>%1: %n recipients</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Plan_Words</name>
    <message numerus="yes">
        <source>%n messages to be sent</source>
        <translation>
            <numerusform>%n message to be sent</numerusform>
            <numerusform>%n messages to be sent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts</source>
        <translation>
            <numerusform>%n part</numerusform>
            <numerusform>%n parts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out: %1.</source>
        <translation>
            <numerusform>%n left out: %1.</numerusform>
            <numerusform>%n left out: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n messages go as Unicode</source>
        <translation>
            <numerusform>%n message goes as Unicode</numerusform>
            <numerusform>%n messages go as Unicode</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Table_Page</name>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 in %n columns.</source>
        <translation>
            <numerusform>%1: %2 in %n column.</numerusform>
            <numerusform>%1: %2 in %n columns.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Time_Words</name>
    <message numerus="yes">
        <source>%n recipients</source>
        <translation>
            <numerusform>%n recipient</numerusform>
            <numerusform>%n recipients</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n messages</source>
        <translation>
            <numerusform>%n message</numerusform>
            <numerusform>%n messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfilled_Rows</name>
    <message numerus="yes">
        <source>%n recipients get nothing. Of the first, %1.</source>
        <translation>
            <numerusform>%n recipient gets nothing: %1.</numerusform>
            <numerusform>%n recipients get nothing. Of the first, %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There is no field %1: %n recipients get nothing.</source>
        <translation>
            <numerusform>There is no field %1: %n recipient gets nothing.</numerusform>
            <numerusform>There is no field %1: %n recipients get nothing.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recipients have no %1: they get nothing.</source>
        <translation>
            <numerusform>%n recipient has no %1: it gets nothing.</numerusform>
            <numerusform>%n recipients have no %1: they get nothing.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unfinished_Strip</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Send the remaining %n</source>
        <translation>
            <numerusform>Send the remaining %n</numerusform>
            <numerusform>Send the remaining %n</numerusform>
        </translation>
    </message>
</context>
</TS>
