<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>extract</name>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>Looked into the archive: it holds one file or folder.</numerusform>
            <numerusform>Looked into the archive: it holds %n files and folders.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>Brought back what was chosen, one file or folder, to &quot;%1&quot;.</numerusform>
            <numerusform>Brought back what was chosen, %n files and folders, to &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>%n file of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;: %3. All others are there. Extract into a folder on another disk to have it, too.</numerusform>
            <numerusform>%n files of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>This certificate expires in one day, on %1.</numerusform>
            <numerusform>This certificate expires in %n days, on %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>One more was in the way, and its name begins with &quot;kept-&quot; now.</numerusform>
            <numerusform>%n more were in the way, and their names begin with &quot;kept-&quot; now.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n folder</numerusform>
            <numerusform>%n folders</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n second</numerusform>
            <numerusform>%n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n entry is off the list.</numerusform>
            <numerusform>%n entries are off the list.</numerusform>
        </translation>
    </message>
</context>
</TS>
