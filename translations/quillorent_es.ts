<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>About</name>
    <message>
        <source>About Quillorent</source>
        <translation>Acerca de Quillorent</translation>
    </message>
    <message>
        <source>Quillorent %1</source>
        <translation>Quillorent %1</translation>
    </message>
    <message>
        <source>Makes encrypted archives of your folders, and brings them back.</source>
        <translation>Hace paquetes cifrados de sus carpetas y las recupera.</translation>
    </message>
    <message>
        <source>© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and share it; it comes without any warranty.</source>
        <translation>© 2026 Los desarrolladores de Quillorent. Software libre con la licencia MIT: se puede usar, modificar y compartir; se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>It stands on these libraries and their licences:</source>
        <translation>Se apoya en estas bibliotecas y sus licencias:</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Make room on the disk of the destination, or choose another one. Then back up again.</source>
        <translation>Libere espacio en el disco del destino o elija otro. Después, vuelva a hacer la copia.</translation>
    </message>
    <message>
        <source>The destination takes no files of that size. Have the archives split into files of less than 4 GB, and back up again.</source>
        <translation>El destino no admite archivos de ese tamaño. Haga que los paquetes se dividan en archivos de menos de 4 GB y vuelva a hacer la copia.</translation>
    </message>
    <message>
        <source>Nothing can be written to the destination any more. Connect its disk anew, or choose another one, and back up again.</source>
        <translation>Ya no se puede escribir nada en el destino. Conecte de nuevo el disco o elija otro y vuelva a hacer la copia.</translation>
    </message>
    <message>
        <source>A disk does not work as it should. Check its cable, try another disk as the destination, and save what is on this one.</source>
        <translation>Un disco no funciona como debería. Revise el cable, pruebe otro disco como destino y ponga a salvo lo que hay en este.</translation>
    </message>
    <message>
        <source>Something may not be read or written by you. Change its permissions, or take it off the list, and back up again.</source>
        <translation>Hay algo que usted no tiene permiso para leer o escribir. Cambie los permisos o quítelo de la lista y vuelva a hacer la copia.</translation>
    </message>
    <message>
        <source>A program that the backup needs can&apos;t be started. The Tools tab shows which one and lets you choose it.</source>
        <translation>No se puede iniciar un programa que la copia necesita. La página de herramientas indica cuál es y permite elegirlo.</translation>
    </message>
    <message>
        <source>Back up again. If it fails again, the messages of the tools tell more (Show messages, on the Tools tab).</source>
        <translation>Vuelva a hacer la copia. Si falla otra vez, el botón Mostrar mensajes muestra lo que dijeron las herramientas.</translation>
    </message>
</context>
<context>
    <name>ChoicePanel</name>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>What is to be decided</source>
        <translation>Lo que hay que decidir</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Backs up folders into encrypted archives, and brings them back. Opens a window;
quillorent-run does the same without one.</source>
        <translation>Hace copias de seguridad de carpetas en paquetes cifrados y las recupera. Abre una ventana;
quillorent-run hace lo mismo sin ella.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>Archives to bring back.</source>
        <translation>Paquetes que se van a recuperar.</translation>
    </message>
    <message>
        <source>[archive...]</source>
        <translation>[paquete...]</translation>
    </message>
    <message>
        <source>Open this page: %1.</source>
        <translation>Abrir esta página: %1.</translation>
    </message>
    <message>
        <source>page</source>
        <translation>página</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>No existe la opción “%1”.</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>No existe la página “%1”.</translation>
    </message>
</context>
<context>
    <name>ConcernsPanel01</name>
    <message>
        <source>Before it begins</source>
        <translation>Antes de empezar</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Please read this before you go on:</source>
        <translation>Lea esto antes de continuar:</translation>
    </message>
    <message>
        <source>What to think of before it begins</source>
        <translation>Lo que conviene tener en cuenta antes de empezar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Go on anyway</source>
        <translation>&amp;Seguir igualmente</translation>
    </message>
</context>
<context>
    <name>ConsolePanel01</name>
    <message>
        <source>Messages of the last run</source>
        <translation>Mensajes de la última operación</translation>
    </message>
    <message>
        <source>What the last run reported</source>
        <translation>Lo que comunicó la última operación</translation>
    </message>
    <message>
        <source>The last run had nothing to report.</source>
        <translation>La última operación no tuvo nada que comunicar.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Copy the whole text</source>
        <translation>Copiar todo el texto</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>ContentsPanel01</name>
    <message>
        <source>Single files and folders</source>
        <translation>Archivos y carpetas sueltos</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Part of a name; Return goes to the next one</source>
        <translation>Parte de un nombre; con Intro se pasa al siguiente</translation>
    </message>
    <message>
        <source>What the archive holds</source>
        <translation>Lo que contiene el paquete</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Restore what is chosen</source>
        <translation>&amp;Restaurar lo elegido</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Mostrar la ventana</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>ExtractPanel01</name>
    <message>
        <source>An archive failed its test</source>
        <translation>Un paquete no superó la prueba</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Nothing was extracted, because this archive is not whole:</source>
        <translation>No se ha extraído nada, porque este paquete no está íntegro:</translation>
    </message>
    <message>
        <source>The archive that failed its test</source>
        <translation>El paquete que no superó la prueba</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Guide</source>
        <translation>Guía</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillorent[*]</source>
        <translation>Quillorent[*]</translation>
    </message>
    <message>
        <source>Pro&amp;file</source>
        <translation>Per&amp;fil</translation>
    </message>
    <message>
        <source>The profile to load; loading makes it the one in use</source>
        <translation>El perfil que se va a cargar; al cargarlo pasa a ser el que está en uso</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>Car&amp;gar</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>Usar el perfil elegido</translation>
    </message>
    <message>
        <source>Make a new profile</source>
        <translation>Crear un perfil nuevo</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Perfil nuevo</translation>
    </message>
    <message>
        <source>Make another profile from the chosen one</source>
        <translation>Crear otro perfil a partir del elegido</translation>
    </message>
    <message>
        <source>Duplicate the profile</source>
        <translation>Duplicar el perfil</translation>
    </message>
    <message>
        <source>Give the chosen profile another name</source>
        <translation>Dar otro nombre al perfil elegido</translation>
    </message>
    <message>
        <source>Rename the profile</source>
        <translation>Renombrar el perfil</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>Eliminar el perfil elegido</translation>
    </message>
    <message>
        <source>Delete the profile</source>
        <translation>Eliminar el perfil</translation>
    </message>
    <message>
        <source>Loading or saving profiles</source>
        <translation>Cargando o guardando perfiles</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>En uso:</translation>
    </message>
    <message>
        <source>Save all profiles</source>
        <translation>Guardar todos los perfiles</translation>
    </message>
    <message>
        <source>Options…</source>
        <translation>Opciones…</translation>
    </message>
    <message>
        <source>How this profile encrypts, and what the program does by itself</source>
        <translation>Cómo cifra este perfil y qué hace el programa por sí mismo</translation>
    </message>
    <message>
        <source>&amp;Back up</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Folders and files to bac&amp;k up</source>
        <translation>Carpetas y arch&amp;ivos para la copia</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Put back what was removed from the list (Ctrl+Z)</source>
        <translation>Devolver a la lista lo que se quitó de ella (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Folders and files to back up</source>
        <translation>Carpetas y archivos para la copia</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>Add folders and files to the list</source>
        <translation>Añadir carpetas y archivos a la lista</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the folders themselves stay (Delete)</source>
        <translation>Quitar de la lista las entradas seleccionadas; las carpetas no se tocan (Supr)</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Choose where the archives go</source>
        <translation>Elija dónde guardar los paquetes</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Protected by</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>Ca&amp;mbiar…</translation>
    </message>
    <message>
        <source>Go to the passwords</source>
        <translation>Ir a las contraseñas</translation>
    </message>
    <message>
        <source>Change the protection</source>
        <translation>Cambiar la protección</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Paquetes</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>De&amp;talles</translation>
    </message>
    <message>
        <source>Show or hide how the archives are made</source>
        <translation>Mostrar u ocultar cómo se hacen los paquetes</translation>
    </message>
    <message>
        <source>Details of the archives</source>
        <translation>Detalles de los paquetes</translation>
    </message>
    <message>
        <source>Spl&amp;it each archive into files of</source>
        <translation>Dividir cada paq&amp;uete en archivos de</translation>
    </message>
    <message>
        <source>Make several files of this size, called volumes, instead of one large one: for discs, or for places that take no large files. All of them are needed to restore</source>
        <translation>Hacer varios archivos de este tamaño, llamados volúmenes, en lugar de uno grande: para discos ópticos o para sitios que no admiten archivos grandes. Para restaurar se necesitan todos</translation>
    </message>
    <message>
        <source>Largest size of a file</source>
        <translation>Tamaño máximo de un archivo</translation>
    </message>
    <message>
        <source>With its unit, such as 700 MB or 4.7 GB; a number alone means MB</source>
        <translation>Con su unidad, por ejemplo 700 MB o 4,7 GB; un número solo significa MB</translation>
    </message>
    <message>
        <source>Largest size of a file, arrows</source>
        <translation>Tamaño máximo de un archivo, flechas</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>Tamaños habituales</translation>
    </message>
    <message>
        <source>Make them smaller before encrypting</source>
        <translation>Reducirlos antes de cifrarlos</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Hace mucho más pequeños los paquetes de documentos, correo y similares; el tamaño de un paquete revela entonces un poco de lo que contiene</translation>
    </message>
    <message>
        <source>Found by packing samples of what is on the list</source>
        <translation>Calculado empaquetando muestras de lo que hay en la lista</translation>
    </message>
    <message>
        <source>Date archives like their newe&amp;st file</source>
        <translation>Fechar los paquetes como su archivo más &amp;nuevo</translation>
    </message>
    <message>
        <source>Without this, an archive has the date of the backup</source>
        <translation>Sin esto, un paquete lleva la fecha de la copia</translation>
    </message>
    <message>
        <source>Date the encrypted file in them the same way</source>
        <translation>Fechar igual el archivo cifrado que contienen</translation>
    </message>
    <message>
        <source>How the last backup ended</source>
        <translation>Cómo terminó la última copia</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>A&amp;brir carpeta</translation>
    </message>
    <message>
        <source>Show the archives in the file manager</source>
        <translation>Mostrar los paquetes en el gestor de archivos</translation>
    </message>
    <message>
        <source>Try a restore</source>
        <translation>Probar a restaurar</translation>
    </message>
    <message>
        <source>Only what came back is a backup: bring something back while you still have it</source>
        <translation>Solo lo que se ha recuperado es una copia de verdad: recupere algo mientras aún tiene el original</translation>
    </message>
    <message>
        <source>Back &amp;up now</source>
        <translation>Hacer c&amp;opia ahora</translation>
    </message>
    <message>
        <source>R&amp;estore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Backups found</source>
        <translation>Copias encontradas</translation>
    </message>
    <message>
        <source>To be bro&amp;ught back</source>
        <translation>Para rec&amp;uperar</translation>
    </message>
    <message>
        <source>Archives to be brought back</source>
        <translation>Paquetes para recuperar</translation>
    </message>
    <message>
        <source>Add archives from anywhere; of one in several parts the first is enough</source>
        <translation>Añadir paquetes de cualquier lugar; de uno en varias partes basta la primera</translation>
    </message>
    <message>
        <source>Sin&amp;gle files…</source>
        <translation>Archivos sue&amp;ltos…</translation>
    </message>
    <message>
        <source>See what the selected archive holds, and bring back only what you choose of it</source>
        <translation>Ver qué contiene el paquete seleccionado y recuperar solo lo que se elija</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Take the selected archives off the list; the files themselves stay (Delete)</source>
        <translation>Quitar de la lista los paquetes seleccionados; los archivos no se tocan (Supr)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Quitar todo</translation>
    </message>
    <message>
        <source>Take all archives off the list</source>
        <translation>Quitar de la lista todos los paquetes</translation>
    </message>
    <message>
        <source>To look for single files, the whole archive has to be decrypted: that needs the password, and about as long as bringing back all of it.</source>
        <translation>Para buscar archivos sueltos hay que descifrar el paquete entero: para eso hace falta la contraseña y casi tanto tiempo como para recuperarlo todo.</translation>
    </message>
    <message>
        <source>&amp;Into folder</source>
        <translation>E&amp;n la carpeta</translation>
    </message>
    <message>
        <source>Choose where the contents go</source>
        <translation>Elija dónde poner el contenido</translation>
    </message>
    <message>
        <source>Use ~/Restored</source>
        <translation>Usar ~/Restored</translation>
    </message>
    <message>
        <source>A folder of the name &quot;Restored&quot; in your home folder; it is made if it isn&apos;t there yet</source>
        <translation>Una carpeta llamada “Restored” en su carpeta personal; si aún no existe, se crea</translation>
    </message>
    <message>
        <source>Use the folder &quot;Restored&quot; in your home folder</source>
        <translation>Usar la carpeta “Restored” de su carpeta personal</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Eleg&amp;ir…</translation>
    </message>
    <message>
        <source>Choose the folder that everything goes to</source>
        <translation>Elegir la carpeta en la que se pondrá todo</translation>
    </message>
    <message>
        <source>H&amp;ow it is encrypted</source>
        <translation>Cómo está cifrad&amp;o</translation>
    </message>
    <message>
        <source>With the password, by AES</source>
        <translation>Con la contraseña, mediante AES</translation>
    </message>
    <message>
        <source>With the password, by Blowfish</source>
        <translation>Con la contraseña, mediante Blowfish</translation>
    </message>
    <message>
        <source>With the password, by Triple DES</source>
        <translation>Con la contraseña, mediante Triple DES</translation>
    </message>
    <message>
        <source>For a certificate, by S/MIME</source>
        <translation>Para un certificado, mediante S/MIME</translation>
    </message>
    <message>
        <source>Automatic: as the archive&apos;s name tells</source>
        <translation>Automático: según el nombre del paquete</translation>
    </message>
    <message>
        <source>How bringing back ended last time</source>
        <translation>Cómo terminó la última recuperación</translation>
    </message>
    <message>
        <source>Open fol&amp;der</source>
        <translation>A&amp;brir carpeta</translation>
    </message>
    <message>
        <source>Show what was brought back, in the file manager</source>
        <translation>Mostrar en el gestor de archivos lo que se ha recuperado</translation>
    </message>
    <message>
        <source>Restore &amp;now</source>
        <translation>Res&amp;taurar ahora</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contra&amp;seña</translation>
    </message>
    <message>
        <source>Protect arch&amp;ives with</source>
        <translation>Proteger los paquetes co&amp;n</translation>
    </message>
    <message>
        <source>Typed password</source>
        <translation>Contraseña escrita</translation>
    </message>
    <message>
        <source>Password from the keychain</source>
        <translation>Contraseña del llavero</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Passwor&amp;d</source>
        <translation>C&amp;ontraseña</translation>
    </message>
    <message>
        <source>Password, hidden</source>
        <translation>Contraseña, oculta</translation>
    </message>
    <message>
        <source>Password, shown</source>
        <translation>Contraseña, visible</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>O&amp;tra vez</translation>
    </message>
    <message>
        <source>Where no archive is there yet that tells a mistyped password</source>
        <translation>Si aún no hay paquetes que revelen una contraseña mal escrita</translation>
    </message>
    <message>
        <source>Password, once more</source>
        <translation>Contraseña, otra vez</translation>
    </message>
    <message>
        <source>Hide the p&amp;assword</source>
        <translation>Oc&amp;ultar la contraseña</translation>
    </message>
    <message>
        <source>The two differ: one of them is mistyped.</source>
        <translation>Las dos son distintas: una está mal escrita.</translation>
    </message>
    <message>
        <source>The keychain is where your desktop keeps passwords; your log-in opens it. Fetch takes the password out of it, Store puts it in. It is lost together with your account: write it down all the same.</source>
        <translation>El llavero es donde el escritorio guarda las contraseñas; se abre al iniciar sesión. Con Obtener se saca la contraseña de él y con Guardar se pone en él. Se pierde junto con la cuenta: anótela de todos modos.</translation>
    </message>
    <message>
        <source>Acco&amp;unt</source>
        <translation>Cuen&amp;ta</translation>
    </message>
    <message>
        <source>The name that the keychain keeps the password under</source>
        <translation>El nombre con el que el llavero guarda la contraseña</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>O&amp;btener</translation>
    </message>
    <message>
        <source>Fetch this account&apos;s password from the keychain</source>
        <translation>Obtener del llavero la contraseña de esta cuenta</translation>
    </message>
    <message>
        <source>Password of the keychain, hidden</source>
        <translation>Contraseña del llavero, oculta</translation>
    </message>
    <message>
        <source>Password of the keychain, shown</source>
        <translation>Contraseña del llavero, visible</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>Guar&amp;dar</translation>
    </message>
    <message>
        <source>Store the password in the keychain; one that is there already is never replaced</source>
        <translation>Guardar la contraseña en el llavero; si ya hay una, nunca se reemplaza</translation>
    </message>
    <message>
        <source>Hide this p&amp;assword</source>
        <translation>Oc&amp;ultar esta contraseña</translation>
    </message>
    <message>
        <source>Asking the keychain</source>
        <translation>Consultando el llavero</translation>
    </message>
    <message>
        <source>U&amp;nlock…</source>
        <translation>Desb&amp;loquear…</translation>
    </message>
    <message>
        <source>Let the keychain ask for its password</source>
        <translation>Hacer que el llavero pida su contraseña</translation>
    </message>
    <message>
        <source>Careful: the text that counts is not the one you see here. The switch &quot;Hide the password&quot; of the typed password decides between the hidden and the shown text; set it like the one above, on the page &quot;Typed password&quot;.</source>
        <translation>Atención: el texto que cuenta no es el que se ve aquí. La casilla “Ocultar la contraseña” de la contraseña escrita decide entre el texto oculto y el visible; póngala como la de arriba, en la página “Contraseña escrita”.</translation>
    </message>
    <message>
        <source>Certific&amp;ate</source>
        <translation>Cert&amp;ificado</translation>
    </message>
    <message>
        <source>The certificate of whoever is to open the archives</source>
        <translation>El certificado de quien deba poder abrir los paquetes</translation>
    </message>
    <message>
        <source>Choose the certificate</source>
        <translation>Elegir el certificado</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Show the certificate as text, among the messages</source>
        <translation>Mostrar el certificado como texto, entre los mensajes</translation>
    </message>
    <message>
        <source>Show the certificate</source>
        <translation>Mostrar el certificado</translation>
    </message>
    <message>
        <source>Private &amp;key</source>
        <translation>Clave priva&amp;da</translation>
    </message>
    <message>
        <source>Needed to restore only; the file that belongs to the certificate</source>
        <translation>Solo hace falta para restaurar; el archivo que corresponde al certificado</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Elegir la clave privada</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show the private key as text, among the messages, where everybody can read it</source>
        <translation>Mostrar la clave privada como texto, entre los mensajes, donde cualquiera puede leerla</translation>
    </message>
    <message>
        <source>Show the private key</source>
        <translation>Mostrar la clave privada</translation>
    </message>
    <message>
        <source>Two files instead of a password: the certificate locks, and only the private key that belongs to it opens. Backups need the certificate alone.</source>
        <translation>Dos archivos en lugar de una contraseña: el certificado cierra y solo abre la clave privada que le corresponde. Para hacer copias basta el certificado.</translation>
    </message>
    <message>
        <source>Without this password, or the private key that belongs to the certificate, nobody can open the archives, you included.</source>
        <translation>Sin esta contraseña, o sin la clave privada que corresponde al certificado, nadie puede abrir los paquetes, tampoco usted.</translation>
    </message>
    <message>
        <source>S&amp;ynchronise</source>
        <translation>Sincroni&amp;zar</translation>
    </message>
    <message>
        <source>Folders and files to synchronise</source>
        <translation>Carpetas y archivos para sincronizar</translation>
    </message>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Añadir carpetas y archivos para sincronizar</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the files themselves stay (Delete)</source>
        <translation>Quitar de la lista las entradas seleccionadas; los archivos no se tocan (Supr)</translation>
    </message>
    <message>
        <source>Remove entries from synchronisation</source>
        <translation>Quitar entradas de la sincronización</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Kept with the profile; what is copied is the list above</source>
        <translation>Se guarda con el perfil; lo que copiado es la lista de arriba</translation>
    </message>
    <message>
        <source>For your notes; what is copied is the list above</source>
        <translation>Para sus notas; lo que copiado es la lista de arriba</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Elegir la carpeta de origen</translation>
    </message>
    <message>
        <source>&amp;Destination</source>
        <translation>&amp;Destino</translation>
    </message>
    <message>
        <source>Choose or type the folder that the files go to</source>
        <translation>Elija o escriba la carpeta a la que van los archivos</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Elegir el destino de la sincronización</translation>
    </message>
    <message>
        <source>On a server</source>
        <translation>En un servidor</translation>
    </message>
    <message>
        <source>The destination is a folder on another computer, reached over an encrypted connection (ssh)</source>
        <translation>El destino es una carpeta de otro equipo, al que se llega por una conexión cifrada (ssh)</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Usuario</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>By date; what is newer at the destination stays</source>
        <translation>Por fecha; lo que es más nuevo en el destino se conserva</translation>
    </message>
    <message>
        <source>By content; every file is read</source>
        <translation>Por contenido; se lee cada archivo</translation>
    </message>
    <message>
        <source>Deletion</source>
        <translation>Eliminación</translation>
    </message>
    <message>
        <source>Delete at the dest&amp;ination what is not here</source>
        <translation>Elimi&amp;nar en el destino lo que no está aquí</translation>
    </message>
    <message>
        <source>Inside the listed folders only</source>
        <translation>Solo dentro de las carpetas de la lista</translation>
    </message>
    <message>
        <source>Remove files here once they are at the destination</source>
        <translation>Eliminar aquí los archivos cuando estén en el destino</translation>
    </message>
    <message>
        <source>This moves the files instead of copying them</source>
        <translation>Así los archivos se mueven en lugar de copiarse</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
    <message>
        <source>How the last synchronisation ended</source>
        <translation>Cómo terminó la última sincronización</translation>
    </message>
    <message>
        <source>Preview…</source>
        <translation>Vista previa…</translation>
    </message>
    <message>
        <source>Show what would be copied and deleted; nothing is changed</source>
        <translation>Mostrar qué copiadoría y qué se eliminaría; no se cambia nada</translation>
    </message>
    <message>
        <source>Synchronise &amp;now</source>
        <translation>Sincronizar ah&amp;ora</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Programs that do the work. Press Choose, or double-click a path to change it.</source>
        <translation>Programas que hacen el trabajo. Pulse Elegir, o haga doble clic en una ruta para cambiarla.</translation>
    </message>
    <message>
        <source>External tools</source>
        <translation>Herramientas externas</translation>
    </message>
    <message>
        <source>Saving settings</source>
        <translation>Guardando ajustes</translation>
    </message>
    <message>
        <source>Save settin&amp;gs</source>
        <translation>G&amp;uardar ajustes</translation>
    </message>
    <message>
        <source>Save the paths of the tools and the other settings, and check the tools again</source>
        <translation>Guardar las rutas de las herramientas y los demás ajustes, y volver a comprobar las herramientas</translation>
    </message>
    <message>
        <source>Show &amp;messages</source>
        <translation>&amp;Mostrar mensajes</translation>
    </message>
    <message>
        <source>What the programs said in the last run, where something failed</source>
        <translation>Lo que dijeron los programas en la última operación, si algo falló</translation>
    </message>
    <message>
        <source>Programs that are still at work</source>
        <translation>Programas que aún están trabajando</translation>
    </message>
    <message>
        <source>End them</source>
        <translation>Terminarlos</translation>
    </message>
    <message>
        <source>End the programs that a failed run has left at work</source>
        <translation>Terminar los programas que una operación fallida ha dejado trabajando</translation>
    </message>
    <message>
        <source>Files that are not encrypted</source>
        <translation>Archivos sin cifrar</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Eliminarlos</translation>
    </message>
    <message>
        <source>Remove these files; the folders that they were made from stay</source>
        <translation>Eliminar estos archivos; las carpetas de las que se hicieron no se tocan</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Perfil</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nuevo…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplicar…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renombrar…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Load the chosen profile</source>
        <translation>&amp;Cargar el perfil elegido</translation>
    </message>
    <message>
        <source>&amp;Save all profiles</source>
        <translation>&amp;Guardar todos los perfiles</translation>
    </message>
    <message>
        <source>Open this profile at start-&amp;up</source>
        <translation>Abrir este perfil al &amp;iniciar</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>&amp;Opciones…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>&amp;Hacer copia ahora</translation>
    </message>
    <message>
        <source>&amp;Restore now</source>
        <translation>&amp;Restaurar ahora</translation>
    </message>
    <message>
        <source>&amp;Synchronise now</source>
        <translation>&amp;Sincronizar ahora</translation>
    </message>
    <message>
        <source>Show what synchronising would &amp;do…</source>
        <translation>&amp;Ver qué haría la sincronización…</translation>
    </message>
    <message>
        <source>S&amp;top…</source>
        <translation>&amp;Detener…</translation>
    </message>
    <message>
        <source>Add &amp;folders to back up…</source>
        <translation>Añadir &amp;carpetas a la copia…</translation>
    </message>
    <message>
        <source>Add &amp;archives to restore…</source>
        <translation>Añadir &amp;paquetes para restaurar…</translation>
    </message>
    <message>
        <source>Save settings and &amp;check the programs</source>
        <translation>&amp;Guardar ajustes y comprobar los programas</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>C&amp;ontraseña</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>&amp;Sincronizar</translation>
    </message>
    <message>
        <source>&amp;Messages of the last run</source>
        <translation>&amp;Mensajes de la última operación</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>&amp;Recovery without this program</source>
        <translation>&amp;Recuperación sin este programa</translation>
    </message>
    <message>
        <source>&amp;About Quillorent</source>
        <translation>&amp;Acerca de Quillorent</translation>
    </message>
    <message>
        <source>A backup needs more room than its archives do in the end: what is packed and what is encrypted lie here side by side for a while, together about two and a half times as much as the folder</source>
        <translation>Una copia necesita más espacio del que ocupan al final sus paquetes: lo empaquetado y lo cifrado están aquí a la vez durante un tiempo, en total unas dos veces y media el tamaño de la carpeta</translation>
    </message>
    <message>
        <source>Of an archive that was made in several parts, the first one is enough; the others only have to be in the same folder</source>
        <translation>De un paquete hecho en varias partes basta la primera; las demás solo tienen que estar en la misma carpeta</translation>
    </message>
    <message>
        <source>The name of an archive tells how it was encrypted; choose it here only where an archive was renamed. AES, Blowfish and Triple DES are ways to do it with a password; S/MIME is the way to do it for a certificate, and takes the private key that belongs to it. Both are chosen where passwords are.</source>
        <translation>El nombre de un paquete indica cómo se cifró; elíjalo aquí solo si se ha cambiado el nombre de un paquete. AES, Blowfish y Triple DES son formas de cifrar con una contraseña; S/MIME es la forma de cifrar para un certificado y necesita la clave privada que le corresponde. Ambas cosas se eligen donde están las contraseñas.</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Lo que va mal</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>NamePanel</name>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>New &amp;name</source>
        <translation>&amp;Nombre nuevo</translation>
    </message>
    <message>
        <source>Begin with my &amp;usual folders (documents, pictures, desktop)</source>
        <translation>Empezar con mis carpetas &amp;habituales (documentos, imágenes, escritorio)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>now: the last one of the list</source>
        <translation>ahora: el último de la lista</translation>
    </message>
    <message>
        <source>now: %1</source>
        <translation>ahora: %1</translation>
    </message>
    <message>
        <source>Can&apos;t start</source>
        <translation>No se puede empezar</translation>
    </message>
    <message>
        <source>Certificate not accepted</source>
        <translation>Certificado no aceptado</translation>
    </message>
    <message>
        <source>Private key not accepted</source>
        <translation>Clave privada no aceptada</translation>
    </message>
    <message>
        <source>Can&apos;t save</source>
        <translation>No se puede guardar</translation>
    </message>
    <message>
        <source>Settings and profiles</source>
        <translation>Ajustes y perfiles</translation>
    </message>
    <message>
        <source>Programs are missing</source>
        <translation>Faltan programas</translation>
    </message>
    <message>
        <source>Changed by others, too</source>
        <translation>Cambiado también por otros</translation>
    </message>
    <message>
        <source>&amp;Save what I changed</source>
        <translation>&amp;Guardar mis cambios</translation>
    </message>
    <message>
        <source>&amp;Take what is in the file</source>
        <translation>&amp;Usar lo que hay en el archivo</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Save a copy...</source>
        <translation>&amp;Guardar una copia...</translation>
    </message>
    <message>
        <source>&amp;Quit without saving</source>
        <translation>&amp;Salir sin guardar</translation>
    </message>
    <message>
        <source>Rename a profile</source>
        <translation>Renombrar un perfil</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Perfil nuevo</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>Duplicate a profile</source>
        <translation>Duplicar un perfil</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>The two are independent of each other once the profiles are saved and the program is started again. Until then a change in one is a change in both.</source>
        <translation>Los dos son independientes una vez que se guardan los perfiles y se inicia de nuevo el programa. Hasta entonces, un cambio en uno es un cambio en ambos.</translation>
    </message>
    <message>
        <source>Name not accepted</source>
        <translation>Nombre no aceptado</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel01</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Este perfil</translation>
    </message>
    <message>
        <source>With a pass&amp;word, encrypt by</source>
        <translation>Con con&amp;traseña, cifrar mediante</translation>
    </message>
    <message>
        <source>AES is the right one; the others are there for whoever must open the archives with old programs</source>
        <translation>AES es la opción correcta; las demás existen para quien deba abrir los paquetes con programas antiguos</translation>
    </message>
    <message>
        <source>AES, 256 bits (recommended)</source>
        <translation>AES, 256 bits (recomendado)</translation>
    </message>
    <message>
        <source>Blowfish (old)</source>
        <translation>Blowfish (antiguo)</translation>
    </message>
    <message>
        <source>Triple DES (old)</source>
        <translation>Triple DES (antiguo)</translation>
    </message>
    <message>
        <source>With a ce&amp;rtificate, encrypt by</source>
        <translation>Con certi&amp;ficado, cifrar mediante</translation>
    </message>
    <message>
        <source>S/MIME is the standard by which mail is encrypted for a certificate; other programs can open it</source>
        <translation>S/MIME es la norma con la que se cifra el correo para un certificado; otros programas pueden abrirlo</translation>
    </message>
    <message>
        <source>AES, 256 bits, as in mail (S/MIME)</source>
        <translation>AES, 256 bits, como en el correo (S/MIME)</translation>
    </message>
    <message>
        <source>Compress before encryptin&amp;g</source>
        <translation>Com&amp;primir antes de cifrar</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Hace mucho más pequeños los paquetes de documentos, correo y similares; el tamaño de un paquete revela entonces un poco de lo que contiene</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask when the destination is not empty</source>
        <translation>&amp;No preguntar si el destino no está vacío</translation>
    </message>
    <message>
        <source>Archives of the same name are replaced without a question</source>
        <translation>Los paquetes del mismo nombre se reemplazan sin preguntar</translation>
    </message>
    <message>
        <source>The program</source>
        <translation>El programa</translation>
    </message>
    <message>
        <source>Open this profile at &amp;start-up</source>
        <translation>Abrir este perfil al &amp;iniciar</translation>
    </message>
    <message>
        <source>Save, and open the profile in use when the program starts</source>
        <translation>Guardar, y abrir el perfil en uso cuando se inicie el programa</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardando</translation>
    </message>
    <message>
        <source>Save changes when &amp;quitting</source>
        <translation>Guardar los cambios al &amp;salir</translation>
    </message>
    <message>
        <source>Without this, the program asks before changes that were not saved are lost</source>
        <translation>Sin esto, el programa pregunta antes de que se pierdan cambios sin guardar</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version at each start</source>
        <translation>&amp;Buscar una versión más nueva en cada inicio</translation>
    </message>
    <message>
        <source>&amp;Programs that do the work…</source>
        <translation>P&amp;rogramas que hacen el trabajo…</translation>
    </message>
    <message>
        <source>Which archiver, encryption tool and copying tool are used, and whether they are in order</source>
        <translation>Qué empaquetador, herramienta de cifrado y herramienta de copia se usan, y si están en orden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>PreviewPanel01</name>
    <message>
        <source>What would be copied and deleted</source>
        <translation>Lo que copiadoría y eliminaría</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>&amp;Sincronizar</translation>
    </message>
    <message>
        <source>Do what is shown</source>
        <translation>Hacer lo que se muestra</translation>
    </message>
</context>
<context>
    <name>ProfilePanel04</name>
    <message>
        <source>Delete a profile</source>
        <translation>Eliminar un perfil</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>¿Eliminar este perfil?</translation>
    </message>
    <message>
        <source>Folders and archives stay as they are; only the list of folders and the options are gone, for good once the profiles are saved.</source>
        <translation>Las carpetas y los paquetes se quedan como están; solo desaparecen la lista de carpetas y las opciones, definitivamente en cuanto se guardan los perfiles.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Time: %1</source>
        <translation>Tiempo: %1</translation>
    </message>
    <message>
        <source>read: %1</source>
        <translation>leído: %1</translation>
    </message>
    <message>
        <source>more at the destination: %1</source>
        <translation>más en el destino: %1</translation>
    </message>
</context>
<context>
    <name>ProgressFigures</name>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ProgressPanel01</name>
    <message>
        <source>Backup</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Haciendo la copia…</translation>
    </message>
    <message>
        <source>Measuring the folders…</source>
        <translation>Midiendo las carpetas…</translation>
    </message>
    <message>
        <source>Progress of the backup</source>
        <translation>Progreso de la copia</translation>
    </message>
    <message>
        <source>Folders and how far they are</source>
        <translation>Carpetas y su avance</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop the backup; archives that are finished stay</source>
        <translation>Detener la copia; los paquetes terminados se conservan</translation>
    </message>
</context>
<context>
    <name>ProgressPanel02</name>
    <message>
        <source>Restore</source>
        <translation>Restauración</translation>
    </message>
    <message>
        <source>Progress of restoring</source>
        <translation>Progreso de la restauración</translation>
    </message>
    <message>
        <source>Archives and how far they are</source>
        <translation>Paquetes y su avance</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop; what is restored already stays, and is not complete</source>
        <translation>Detener; lo ya restaurado se conserva, pero está incompleto</translation>
    </message>
</context>
<context>
    <name>ProgressPanel03</name>
    <message>
        <source>Synchronisation</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>The synchronisation goes on</source>
        <translation>La sincronización está en marcha</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop; what is copied already stays</source>
        <translation>Detener; lo ya copiado se conserva</translation>
    </message>
</context>
<context>
    <name>Protection</name>
    <message>
        <source>Typed password</source>
        <translation>Contraseña escrita</translation>
    </message>
    <message>
        <source>Password from the keychain – please look at the Password tab</source>
        <translation>Contraseña del llavero – consulte la pestaña Contraseña</translation>
    </message>
    <message>
        <source>Password from the keychain – no account chosen yet</source>
        <translation>Contraseña del llavero – aún no se ha elegido ninguna cuenta</translation>
    </message>
    <message>
        <source>Password from the keychain – not fetched yet</source>
        <translation>Contraseña del llavero – aún no obtenida</translation>
    </message>
    <message>
        <source>Password typed for the keychain – not stored in it</source>
        <translation>Contraseña escrita para el llavero – no guardada en él</translation>
    </message>
    <message>
        <source>Password from the keychain, account %1</source>
        <translation>Contraseña del llavero, cuenta %1</translation>
    </message>
    <message>
        <source>Certificate – none chosen yet</source>
        <translation>Certificado – aún no se ha elegido ninguno</translation>
    </message>
    <message>
        <source>Certificate: %1</source>
        <translation>Certificado: %1</translation>
    </message>
    <message>
        <source>Password – none typed yet</source>
        <translation>Contraseña – aún no se ha escrito ninguna</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>Synchronisation in progress</source>
        <translation>Sincronización en curso</translation>
    </message>
    <message>
        <source>Folders are being synchronised.</source>
        <translation>Se están sincronizando carpetas.</translation>
    </message>
    <message>
        <source>Stop the synchronisation?</source>
        <translation>¿Detener la sincronización?</translation>
    </message>
    <message>
        <source>What is copied already stays, and the next run goes on from there.</source>
        <translation>Lo ya copiado se conserva, y la próxima vez se continúa desde ahí.</translation>
    </message>
    <message>
        <source>Restoring in progress</source>
        <translation>Restauración en curso</translation>
    </message>
    <message>
        <source>Files are being restored.</source>
        <translation>Se están restaurando archivos.</translation>
    </message>
    <message>
        <source>Stop restoring?</source>
        <translation>¿Detener la restauración?</translation>
    </message>
    <message>
        <source>What is restored already stays, and is not complete.</source>
        <translation>Lo ya restaurado se conserva, pero está incompleto.</translation>
    </message>
    <message>
        <source>Backup in progress</source>
        <translation>Copia de seguridad en curso</translation>
    </message>
    <message>
        <source>A backup is running.</source>
        <translation>Se está haciendo una copia de seguridad.</translation>
    </message>
    <message>
        <source>Stop the backup?</source>
        <translation>¿Detener la copia?</translation>
    </message>
    <message>
        <source>Archives that are finished stay. Folders that are not finished keep the archive of the backup before this one.</source>
        <translation>Los paquetes terminados se conservan. Las carpetas sin terminar mantienen el paquete de la copia anterior.</translation>
    </message>
    <message>
        <source>Quitting stops that. %1</source>
        <translation>Al salir se detiene. %1</translation>
    </message>
    <message>
        <source>&amp;Stop and quit</source>
        <translation>&amp;Detener y salir</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Keep running</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Looking into an archive</source>
        <translation>Contenido de un paquete</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>Se está mirando qué contiene un paquete.</translation>
    </message>
    <message>
        <source>Stop looking into the archive?</source>
        <translation>¿Dejar de mirar qué contiene el paquete?</translation>
    </message>
    <message>
        <source>Nothing of yours has been changed.</source>
        <translation>No se ha cambiado ninguno de sus archivos.</translation>
    </message>
</context>
<context>
    <name>UpdatePanel01</name>
    <message>
        <source>A newer version</source>
        <translation>Una versión más nueva</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Its makers say nothing of what is new.</source>
        <translation>Sus autores no dicen qué hay de nuevo.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Open the &amp;download page</source>
        <translation>Abrir la página de &amp;descarga</translation>
    </message>
</context>
<context>
    <name>WarningPanel02</name>
    <message>
        <source>The extraction folder is not empty</source>
        <translation>La carpeta de extracción no está vacía</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>The extraction folder is not empty:</source>
        <translation>La carpeta de extracción no está vacía:</translation>
    </message>
    <message>
        <source>Extraction folder</source>
        <translation>Carpeta de extracción</translation>
    </message>
    <message>
        <source>Files of the same name and place are replaced, others stay as they are.</source>
        <translation>Los archivos con el mismo nombre y lugar se reemplazan; los demás se quedan como están.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Extract anyway</source>
        <translation>&amp;Extraer igualmente</translation>
    </message>
</context>
<context>
    <name>WarningPanel03</name>
    <message>
        <source>The destination is not empty</source>
        <translation>El destino no está vacío</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>The destination folder is not empty:</source>
        <translation>La carpeta de destino no está vacía:</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>What is there</source>
        <translation>Lo que hay en ella</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Back up anyway</source>
        <translation>&amp;Hacer copia igualmente</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Easy to guess. Five or six words that have nothing to do with each other are better.</source>
        <translation>Fácil de adivinar. Es mejor usar cinco o seis palabras que no tengan nada que ver entre sí.</translation>
    </message>
    <message>
        <source>Hard to guess. One more word makes it strong.</source>
        <translation>Difícil de adivinar. Con una palabra más será muy segura.</translation>
    </message>
    <message>
        <source>Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is a lost backup.</source>
        <translation>Muy difícil de adivinar. ¿Está anotada en un lugar seguro? Una contraseña mal escrita u olvidada es una copia perdida.</translation>
    </message>
    <message>
        <source>Use “%1”, which is chosen but not in use yet</source>
        <translation>Usar “%1”, que está elegido pero aún no en uso</translation>
    </message>
    <message>
        <source>Use the chosen profile; it is in use already</source>
        <translation>Usar el perfil elegido; ya está en uso</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>today at %1</source>
        <translation>hoy a las %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <translation>ayer a las %1</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>el %1 a las %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The program has been moved. Its own tools are used from where they are now, in “%1”: %2.</source>
        <translation>El programa se ha movido. Sus propias herramientas se usan desde donde están ahora, en “%1”: %2.</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the right program there, or install it.</source>
        <translation>%1 de los %2 programas que hacen el trabajo faltan o no son los correctos. La pestaña Herramientas indica cuáles: elija allí el programa correcto o instálelo.</translation>
    </message>
    <message>
        <source>Still at work: %1.</source>
        <translation>Siguen en marcha: %1.</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… y %1 más.</translation>
    </message>
    <message>
        <source>Files are being restored, and would not be complete.</source>
        <translation>Se están restaurando archivos y quedarían incompletos.</translation>
    </message>
    <message>
        <source>Folders are being synchronised, and would not be in step.</source>
        <translation>Se están sincronizando carpetas y no quedarían iguales.</translation>
    </message>
    <message>
        <source>A backup is running, and would not be complete.</source>
        <translation>Se está haciendo una copia y quedaría incompleta.</translation>
    </message>
    <message>
        <source>Cancelled before anything was done.</source>
        <translation>Cancelado antes de hacer nada.</translation>
    </message>
    <message>
        <source>Another profile was opened while the keychain was asked. Start again.</source>
        <translation>Se abrió otro perfil mientras se consultaba el llavero. Empiece de nuevo.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be read:
%2
Their file stays as it is. Repair it, or move it away: the next start makes a new one.</source>
        <translation>No se pueden leer los %1:
%2
Su archivo se queda como está. Repárelo o muévalo a otro lugar: en el próximo inicio se crea uno nuevo.</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>perfiles</translation>
    </message>
    <message>
        <source>Something is running already, or about to end. Try again when it has ended.</source>
        <translation>Ya hay una operación en curso, o a punto de acabar. Inténtelo de nuevo cuando acabe.</translation>
    </message>
    <message>
        <source>A run that was broken off has left this, and it is not encrypted:
%1</source>
        <translation>Una operación interrumpida ha dejado esto, y no está cifrado:
%1</translation>
    </message>
    <message>
        <source>Something is running just now. Remove these files when it has ended.</source>
        <translation>Hay una operación en curso. Elimine estos archivos cuando acabe.</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>Se está mirando qué contiene un paquete.</translation>
    </message>
</context>
<context>
    <name>backup</name>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while: the backup will fail. Rename it.</source>
        <translation>“%1” es una carpeta, y durante un rato se necesita un archivo con ese nombre: la copia fallará. Cámbiele el nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It may be yours, or left in clear by a run that was interrupted. It will be called &quot;%2&quot;, and stay.</source>
        <translation>“%1” ya existe, y su nombre se necesita durante un rato. Puede ser suyo, o haber quedado sin cifrar de una operación interrumpida. Pasará a llamarse “%2” y se conservará.</translation>
    </message>
    <message>
        <source>These archives are in &quot;%1&quot; and will be replaced, other files stay: %2.</source>
        <translation>Estos paquetes están en “%1” y se reemplazarán; los demás archivos no se tocan: %2.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is not empty. Other files stay as they are.</source>
        <translation>El destino “%1” no está vacío. Los demás archivos se quedan como están.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not open with this password: it is not the password of the archives there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, the new archives open with this password only.</source>
        <translation>“%1” no se abre con esta contraseña: no es la contraseña de los paquetes que hay allí, o este paquete está dañado. Si está mal escrita, deténgase y corríjala. Si continúa, los paquetes nuevos se abrirán solo con esta contraseña.</translation>
    </message>
    <message>
        <source>The password was typed only once, and nothing tells whether it is mistyped. Type it again, in the second field on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>La contraseña se ha escrito una sola vez, y nada indica si está mal escrita. Escríbala de nuevo en el segundo campo de la pestaña Contraseña: nadie puede abrir lo que se cifra con una contraseña mal escrita.</translation>
    </message>
    <message>
        <source>The password and its repetition differ: one of them is mistyped. Type both again on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>La contraseña y su repetición son distintas: una está mal escrita. Escriba de nuevo las dos en la pestaña Contraseña: nadie puede abrir lo que se cifra con una contraseña mal escrita.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is listed more than once, and is backed up as often, one after the other, into one archive.</source>
        <translation>“%1” está más de una vez en la lista, y copiado otras tantas veces, una tras otra, en un mismo paquete.</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>no está ahí</translation>
    </message>
    <message>
        <source>it is neither a file nor a folder</source>
        <translation>no es ni un archivo ni una carpeta</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Ha fallado: %1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Backed up %1 of %2 (%3).</source>
        <translation>Copias hechas: %1 de %2 (%3).</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>No encontrado: %1.</translation>
    </message>
    <message>
        <source>Left out, as they are neither files nor folders: %1.</source>
        <translation>Omitidos, por no ser ni archivos ni carpetas: %1.</translation>
    </message>
    <message>
        <source>The former archive is called &quot;%1&quot; now: %2.</source>
        <translation>El paquete anterior se llama ahora “%1”: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left and is not encrypted: run the backup again, or remove it.</source>
        <translation>“%1” ha quedado sin cifrar: vuelva a hacer la copia o elimínelo.</translation>
    </message>
    <message>
        <source>The profile has no folders. Add those that are to be backed up.</source>
        <translation>El perfil no tiene carpetas. Añada aquellas de las que quiera hacer copia.</translation>
    </message>
    <message>
        <source>The destination that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>El destino que se muestra no es el de este perfil. Elíjalo de nuevo.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the archives go to.</source>
        <translation>No se ha elegido ningún destino. Elija la carpeta a la que van los paquetes.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>El destino “%1” no existe o no es una carpeta. Conecte su disco o elija otro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of volumes, the files that an archive is split into. Choose a size such as 700 MB, or switch the splitting off.</source>
        <translation>“%1” no es un tamaño para los volúmenes, los archivos en que se divide un paquete. Elija un tamaño, por ejemplo 700 MB, o desactive la división.</translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; would have a name that is too long for a file. Rename it, or back up the folder that it lies in.</source>
        <translation>El paquete de “%1” tendría un nombre demasiado largo para un archivo. Cámbiele el nombre, o haga copia de la carpeta en la que está.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both need the file &quot;%3&quot; in the destination, and one archive would replace the other. Rename one of them, or back it up by a profile of its own.</source>
        <translation>“%1” y “%2” necesitarían los dos el archivo “%3” en el destino, y un paquete reemplazaría al otro. Cambie el nombre de uno de ellos, o haga su copia con un perfil aparte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the list, and its name is needed for the archive of &quot;%2&quot;. Choose another destination, or rename it.</source>
        <translation>“%1” está en la lista, y su nombre se necesita para el paquete de “%2”. Elija otro destino o cámbiele el nombre.</translation>
    </message>
    <message>
        <source>No password was fetched from the keychain. Fetch it: without a password nothing is backed up.</source>
        <translation>No se ha obtenido ninguna contraseña del llavero. Obténgala: sin contraseña no se hace ninguna copia.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, and is left out. Connect its disk, or remove it from the list.</source>
        <translation>“%1” no está ahí y se omite. Conecte su disco o quítelo de la lista.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, and is left out.</source>
        <translation>“%1” es %2, y se omite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link, and only the link itself would be backed up, nothing that it leads to. Put a slash behind it, or add the folder that it leads to.</source>
        <translation>“%1” es un enlace, y solo se haría copia del enlace mismo, no de aquello a lo que lleva. Ponga una barra (/) detrás, o añada la carpeta a la que lleva.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; lies in &quot;%2&quot;, so each archive would hold the ones before it. Choose another destination.</source>
        <translation>El destino “%1” está dentro de “%2”, así que cada paquete contendría los anteriores. Elija otro destino.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made.</source>
        <translation>No se puede dar otro nombre a “%1” mientras se hace el paquete nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made: %2.</source>
        <translation>No se puede dar otro nombre a “%1” mientras se hace el paquete nuevo: %2.</translation>
    </message>
    <message>
        <source>Something is missing in the settings file, and without it files would be lost: %1. Repair the file, or move it away: the next start makes a new one.</source>
        <translation>En el archivo de ajustes falta algo sin lo que se perderían archivos: %1. Repare el archivo o muévalo a otro lugar: en el próximo inicio se crea uno nuevo.</translation>
    </message>
</context>
<context>
    <name>extract</name>
    <message>
        <source>&quot;%1&quot; is no archive</source>
        <translation>“%1” no es un paquete</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in &quot;%2&quot;, so nothing was brought back. The archive&apos;s paths look like &quot;%3&quot;.</source>
        <translation>No hay ningún “%1” en “%2”, así que no se ha recuperado nada. Las rutas del paquete son como “%3”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not extracted: its path has &quot;part&quot; and, after that, a number as later volumes have it. Move or rename it, and add it again.</source>
        <translation>“%1” no se extrae: su ruta contiene “part” y, detrás, un número como el de los volúmenes posteriores. Muévalo o cámbiele el nombre, y añádalo de nuevo.</translation>
    </message>
    <message>
        <source>The first volume is missing: &quot;%1&quot; is volume %2 of its set. Add the first one, &quot;%3.part1.rar&quot; or &quot;…part01.rar&quot;.</source>
        <translation>Falta el primer volumen: “%1” es el volumen %2 de su conjunto. Añada el primero, “%3.part1.rar” o “…part01.rar”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the path of anything in an archive. Name a file or a folder as the archive has it, such as &quot;home/anna/letter&quot;.</source>
        <translation>“%1” no puede ser la ruta de nada dentro de un paquete. Indique un archivo o una carpeta tal como figura en el paquete, por ejemplo “home/anna/letter”.</translation>
    </message>
    <message>
        <source>%1 Extract again; if it happens again, the machine may be short of memory.</source>
        <translation>%1 Vuelva a extraer; si ocurre otra vez, puede que al equipo le falte memoria.</translation>
    </message>
    <message>
        <source>The disk of &quot;%1&quot; is full. Make room, or choose a folder on another disk, and extract again.</source>
        <translation>El disco de “%1” está lleno. Libere espacio o elija una carpeta en otro disco, y vuelva a extraer.</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;. Choose another folder, or change its permissions.</source>
        <translation>No tiene permiso para escribir en “%1”. Elija otra carpeta o cambie sus permisos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it, or extract into another folder.</source>
        <translation>“%1” es una carpeta, y durante un rato se necesita un archivo con ese nombre. Cámbiele el nombre, o extraiga en otra carpeta.</translation>
    </message>
    <message>
        <source>A volume is missing: %1. Put all volumes of the set into one folder and extract again.</source>
        <translation>Falta un volumen: %1. Ponga todos los volúmenes del conjunto en una misma carpeta y vuelva a extraer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first volume of its set. Add the first one; the others are found by it.</source>
        <translation>“%1” no es el primer volumen de su conjunto. Añada el primero; los demás se encuentran a partir de él.</translation>
    </message>
    <message>
        <source>The volumes of &quot;%1&quot; do not belong together: %2. Put those of one set into one folder.</source>
        <translation>Los volúmenes de “%1” no forman un conjunto: %2. Ponga los de un mismo conjunto en una sola carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: a part of it was lost when it was copied, or the copy is not finished. Copy it again: %2.</source>
        <translation>“%1” está cortado: se perdió una parte al copiarlo, o la copia no ha terminado. Cópielo de nuevo: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2. Fetch another copy of it.</source>
        <translation>“%1” está dañado: %2. Consiga otra copia de él.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no archive, whatever its name: %2.</source>
        <translation>“%1” no es un paquete, diga lo que diga su nombre: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be unpacked: %2.</source>
        <translation>“%1” no se puede desempaquetar: %2.</translation>
    </message>
    <message>
        <source>The private key can&apos;t be read. Choose the one that belongs to the certificate, on the Password tab.</source>
        <translation>No se puede leer la clave privada. Elija la que corresponde al certificado, en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>The certificate can&apos;t be read. Choose the one that the archive was encrypted for, on the Password tab.</source>
        <translation>No se puede leer el certificado. Elija aquel para el que se cifró el paquete, en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; is damaged, or was not encrypted for a certificate: %2. Fetch another copy, or choose another decryption method.</source>
        <translation>El contenido de “%1” está dañado, o no se cifró para un certificado: %2. Consiga otra copia o elija otro método de descifrado.</translation>
    </message>
    <message>
        <source>The private key or the certificate is not usable: %1. A key with a pass phrase can&apos;t be used.</source>
        <translation>La clave privada o el certificado no sirven: %1. No se puede usar una clave protegida con contraseña.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with this private key and certificate: %2. Choose the pair that it was encrypted for, on the Password tab.</source>
        <translation>“%1” no se puede descifrar con esta clave privada y este certificado: %2. Elija la pareja para la que se cifró, en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a link where the encrypted file should be. It was not made by a backup: don&apos;t trust it.</source>
        <translation>“%1” contiene un enlace donde debería estar el archivo cifrado. No procede de una copia de seguridad: no se fíe de él.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the decryption method, and extract again.</source>
        <translation>El nombre de “%1” no indica cómo se cifró. Elija el método de descifrado y vuelva a extraer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with the method that is chosen; its name tells another one. Choose the automatic method.</source>
        <translation>“%1” no se puede descifrar con el método elegido; su nombre indica otro. Elija el método automático.</translation>
    </message>
    <message>
        <source>The password is wrong: &quot;%1&quot; can&apos;t be decrypted with it. Type the one that the archive was made with.</source>
        <translation>La contraseña es incorrecta: con ella no se puede descifrar “%1”. Escriba aquella con la que se hizo el paquete.</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; was not encrypted by a password, or it is damaged. Choose another decryption method, or fetch another copy.</source>
        <translation>El contenido de “%1” no se cifró con una contraseña, o está dañado. Elija otro método de descifrado o consiga otra copia.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted: %2.</source>
        <translation>“%1” no se puede descifrar: %2.</translation>
    </message>
    <message>
        <source>The password is probably wrong: what &quot;%1&quot; was decrypted to is no archive. Type the one that the archive was made with.</source>
        <translation>La contraseña es probablemente incorrecta: lo que resulta de descifrar “%1” no es un paquete. Escriba aquella con la que se hizo el paquete.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds names that lead out of &quot;%2&quot;: %3. They were left out; don&apos;t trust the archive.</source>
        <translation>“%1” contiene nombres que llevan fuera de “%2”: %3. Se han omitido; no se fíe del paquete.</translation>
    </message>
    <message>
        <source>A name in &quot;%1&quot; is taken by something else in &quot;%2&quot;: %3. Rename that, or extract into an empty folder.</source>
        <translation>Un nombre de “%1” ya lo ocupa otra cosa en “%2”: %3. Cambie ese nombre, o extraiga en una carpeta vacía.</translation>
    </message>
    <message>
        <source>The archiver left out a link of &quot;%1&quot;: %2. It makes none that lead to an absolute path or out of the folder. Quillorent&apos;s own archiver does: choose it on the Tools tab, and extract again.</source>
        <translation>El empaquetador ha omitido un enlace de “%1”: %2. No crea enlaces que lleven a una ruta absoluta o fuera de la carpeta. El empaquetador propio de Quillorent sí los crea: elíjalo en la pestaña Herramientas y vuelva a extraer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the archives, and its name is needed for what comes out of &quot;%2&quot;. Extract into another folder.</source>
        <translation>“%1” es uno de los paquetes, y su nombre se necesita para lo que sale de “%2”. Extraiga en otra carpeta.</translation>
    </message>
    <message>
        <source>The set of &quot;%1&quot; seems incomplete or mixed: %2. Put all its volumes, and no others, into one folder.</source>
        <translation>El conjunto de “%1” parece incompleto o mezclado: %2. Ponga todos sus volúmenes, y ningún otro, en una misma carpeta.</translation>
    </message>
    <message>
        <source>No private key is chosen. Without it nothing that was encrypted for a certificate can be decrypted.</source>
        <translation>No se ha elegido ninguna clave privada. Sin ella no se puede descifrar nada de lo que se cifró para un certificado.</translation>
    </message>
    <message>
        <source>The private key &quot;%1&quot; can&apos;t be read.</source>
        <translation>No se puede leer la clave privada “%1”.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose the one that the archives were encrypted for.</source>
        <translation>No se ha elegido ningún certificado. Elija aquel para el que se cifraron los paquetes.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; can&apos;t be read.</source>
        <translation>No se puede leer el certificado “%1”.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the method, unless the name of what is in it tells.</source>
        <translation>El nombre de “%1” no indica cómo se cifró. Elija el método, salvo que lo indique el nombre de lo que hay dentro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was encrypted by a password, and a certificate is chosen. Choose a password on the Password tab.</source>
        <translation>“%1” se cifró con una contraseña, pero está elegido un certificado. Elija una contraseña en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>“%1” es una carpeta, y durante un rato se necesita un archivo con ese nombre. Cámbiele el nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It will get another name, which begins with &quot;kept&quot;, and stay.</source>
        <translation>“%1” ya existe, y su nombre se necesita durante un rato. Recibirá otro nombre, que empieza por “kept”, y se conservará.</translation>
    </message>
    <message>
        <source>Two archives need the name &quot;%1&quot; for a while. They are extracted one after the other; what the second would replace goes into a folder of its own.</source>
        <translation>Dos paquetes necesitan el nombre “%1” durante un rato. Se extraen uno tras otro; lo que el segundo reemplazaría va a una carpeta propia.</translation>
    </message>
    <message>
        <source>Single files are looked for in one archive at a time. Choose one archive, or of a set its first volume.</source>
        <translation>Los archivos sueltos se buscan en un solo paquete cada vez. Elija un paquete o, de un conjunto, su primer volumen.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>La carpeta de extracción “%1” no existe o no es una carpeta. Conecte su disco o elija otra.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there any more, or can&apos;t be read.</source>
        <translation>“%1” ya no está ahí, o no se puede leer.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name are replaced.</source>
        <translation>La carpeta de extracción “%1” no está vacía. Los archivos con el mismo nombre se reemplazan.</translation>
    </message>
    <message>
        <source>its name is that of a later volume</source>
        <translation>su nombre es el de un volumen posterior</translation>
    </message>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>Paquete examinado: contiene %n archivo o carpeta.</numerusform>
            <numerusform>Paquete examinado: contiene %n archivos y carpetas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>Lo elegido se ha recuperado en “%1”: %n archivo o carpeta.</numerusform>
            <numerusform>Lo elegido se ha recuperado en “%1”: %n archivos y carpetas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Extracted %1 of %2 into &quot;%3&quot;.</source>
        <translation>Paquetes extraídos: %1 de %2, en “%3”.</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Ha fallado: %1</translation>
    </message>
    <message>
        <source>Cancelled. What was chosen may have been brought back in part.</source>
        <translation>Cancelado. Puede que lo elegido se haya recuperado solo en parte.</translation>
    </message>
    <message>
        <source>Cancelled. Files left in the extraction folder may be incomplete.</source>
        <translation>Cancelado. Los archivos que queden en la carpeta de extracción pueden estar incompletos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what would have replaced files of another archive.</source>
        <translation>En “%1” está lo que habría reemplazado archivos de otro paquete.</translation>
    </message>
    <message>
        <source>Not extracted, as they look like later volumes: %1.</source>
        <translation>No extraídos, porque parecen volúmenes posteriores: %1.</translation>
    </message>
    <message>
        <source>volume %1 is there twice, so some are leftovers of another backup</source>
        <translation>el volumen %1 está dos veces, así que algunos son restos de otra copia</translation>
    </message>
    <message>
        <source>volume %1 is missing</source>
        <translation>falta el volumen %1</translation>
    </message>
    <message>
        <source>all volumes but the first are missing</source>
        <translation>faltan todos los volúmenes menos el primero</translation>
    </message>
    <message>
        <source>volume %1 is shorter than the one before it. Either it was cut short, or it is the last one, and those from volume %2 on are leftovers of a larger backup</source>
        <translation>el volumen %1 es más corto que el anterior. O está cortado, o es el último, y los que hay desde el volumen %2 son restos de una copia más grande</translation>
    </message>
    <message>
        <source>volume %1 is as large as those before it, so it may not be the last</source>
        <translation>el volumen %1 es tan grande como los anteriores, así que puede no ser el último</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not hold the file &quot;%2&quot; that its name promises. Give the archive back the name that it had; if it never had another one, no backup has made it.</source>
        <translation>“%1” no contiene el archivo “%2” que su nombre promete. Devuelva al paquete el nombre que tenía; si nunca tuvo otro, no procede de una copia de seguridad.</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; was decrypted to is no archive. The private key is wrong, or no backup has made the archive.</source>
        <translation>Lo que resulta de descifrar “%1” no es un paquete. La clave privada es incorrecta, o el paquete no procede de una copia de seguridad.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing of yours was changed.</source>
        <translation>Cancelado. No se ha cambiado ninguno de sus archivos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link</source>
        <translation>“%1” es un enlace</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>No se puede crear %n archivo de “%1” en “%2”: %3. Todo lo demás está ahí. Extraiga en una carpeta de otro disco para tenerlo también.</numerusform>
            <numerusform>No se pueden crear %n archivos de “%1” en “%2”, empezando por este: %3. Todo lo demás está ahí. Extraiga en una carpeta de otro disco para tenerlos también.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>extraction</name>
    <message>
        <source>No archives are chosen. Add those that are to be extracted.</source>
        <translation>No se ha elegido ningún paquete. Añada los que quiera extraer.</translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is extracted.</source>
        <translation>No se ha dado ninguna contraseña. Escriba una en la pestaña Contraseña; sin contraseña no se extrae nada.</translation>
    </message>
    <message>
        <source>No extraction folder is chosen. Choose the folder that the contents go to.</source>
        <translation>No se ha elegido ninguna carpeta de extracción. Elija la carpeta a la que va el contenido.</translation>
    </message>
    <message>
        <source>The extraction folder that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>La carpeta de extracción que se muestra no es la de este perfil. Elíjala de nuevo.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>No se ha elegido ningún certificado. Elija uno en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>No archive is chosen. Add the one that has the file.</source>
        <translation>No se ha elegido ningún paquete. Añada el que tiene el archivo.</translation>
    </message>
    <message>
        <source>Add archives</source>
        <translation>Añadir paquetes</translation>
    </message>
    <message>
        <source>There is no archive among them: archives end in &quot;.rar&quot;.</source>
        <translation>Entre ellos no hay ningún paquete: los paquetes terminan en &quot;.rar&quot;.</translation>
    </message>
    <message>
        <source>Choose where the archives are extracted to</source>
        <translation>Elija dónde extraer los paquetes</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made. Choose another one.</source>
        <translation>No se puede crear la carpeta “%1”. Elija otra.</translation>
    </message>
    <message>
        <source>Testing the archives…</source>
        <translation>Probando los paquetes…</translation>
    </message>
    <message>
        <source>Testing &quot;%1&quot;…</source>
        <translation>Probando “%1”…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Restaurando…</translation>
    </message>
    <message>
        <source>Looking into &quot;%1&quot;…</source>
        <translation>Mirando qué contiene “%1”…</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>a pipe, a socket or a device</source>
        <translation>una tubería, un socket o un dispositivo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link or a file in the destination, where a folder is needed</source>
        <translation>“%1” es un enlace o un archivo en el destino, donde se necesita una carpeta</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>There may not be enough room: about %1 are needed, and %2 are free in &quot;%3&quot;.</source>
        <translation>Puede que no haya espacio suficiente: se necesitan unos %1, y en “%3” hay %2 libres.</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;: %2. Choose another folder, or change its permissions.</source>
        <translation>No tiene permiso para escribir en “%1”: %2. Elija otra carpeta o cambie sus permisos.</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>un archivo</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>una carpeta</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>un enlace</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder</source>
        <translation>“%1” es una carpeta</translation>
    </message>
</context>
<context>
    <name>folders</name>
    <message>
        <source>The password is that of the account &quot;%1&quot;, and the account that is chosen is &quot;%2&quot;. Fetch its password on the Password tab, or choose the other account again.</source>
        <translation>La contraseña es la de la cuenta “%1”, y la cuenta elegida es “%2”. Obtenga su contraseña en la pestaña Contraseña, o vuelva a elegir la otra cuenta.</translation>
    </message>
    <message>
        <source>Add folders and files</source>
        <translation>Añadir carpetas y archivos</translation>
    </message>
    <message>
        <source>Choose the destination of the archives</source>
        <translation>Elegir el destino de los paquetes</translation>
    </message>
</context>
<context>
    <name>headless</name>
    <message>
        <source>The profile encrypts for a certificate; a password does not go with it.</source>
        <translation>El perfil cifra para un certificado; no admite una contraseña.</translation>
    </message>
    <message>
        <source>There is no archive &quot;%1&quot;.</source>
        <translation>No existe el paquete “%1”.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name would be replaced.</source>
        <translation>La carpeta de extracción “%1” no está vacía. Los archivos con el mismo nombre se reemplazarían.</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>No hay perfiles.</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;; there are: %2.</source>
        <translation>No existe el perfil “%1”; existen: %2.</translation>
    </message>
    <message>
        <source>Try &quot;quillorent-run --help&quot;.</source>
        <translation>Pruebe &quot;quillorent-run --help&quot;.</translation>
    </message>
    <message>
        <source>Runs what Quillorent&apos;s window runs, without a window.

Commands:
  backup [PROFILE]                  back up the folders of a profile
  extract [PROFILE] -- ARCHIVE...   turn archives back into folders; of a set the first volume,
                                    or a folder of archives
  list [PROFILE] -- ARCHIVE         tell what an archive holds: bytes, time, path, separated by
                                    tabs; needs the password, room and time as extract does
  sync [PROFILE]                    synchronise the files and folders of a profile
  tools                             list the external tools: name, path, ok or not
  profiles                          list the profiles; * marks the one opened at start-up

Exit status: 0 done, 1 failed or cancelled, 2 could not start, or was not to
go on (see --yes), 64 wrong usage.</source>
        <translation>Hace lo mismo que la ventana de Quillorent, sin ventana.

Comandos:
  backup [PROFILE]                  hace copia de las carpetas de un perfil
  extract [PROFILE] -- ARCHIVE...   convierte paquetes de nuevo en carpetas; de un conjunto,
                                    el primer volumen, o una carpeta de paquetes
  list [PROFILE] -- ARCHIVE         dice qué contiene un paquete: bytes, hora, ruta, separados por
                                    tabuladores; necesita contraseña, espacio y tiempo como extract
  sync [PROFILE]                    sincroniza los archivos y carpetas de un perfil
  tools                             lista las herramientas externas: nombre, ruta, correcta o no
  profiles                          lista los perfiles; * marca el que se abre al iniciar

Estado de salida: 0 hecho, 1 fallido o cancelado, 2 no pudo empezar o no debía
continuar (véase --yes), 64 uso incorrecto.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Muestra este texto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE; - is standard input.</source>
        <translation>Toma la contraseña de la primera línea de FILE; - es la entrada estándar.</translation>
    </message>
    <message>
        <source>Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given several times. Nothing is replaced: what is there gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Recupera solo PATH, un archivo o carpeta del único paquete, tal como lo muestra list; puede darse varias veces. No se reemplaza nada: lo que ya existe recibe un nombre que empieza por “kept-”.</translation>
    </message>
    <message>
        <source>Extract into FOLDER instead of the profile&apos;s extraction folder.</source>
        <translation>Extrae en FOLDER en lugar de en la carpeta de extracción del perfil.</translation>
    </message>
    <message>
        <source>Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive&apos;s name.</source>
        <translation>Descifra por METHOD: aes, bf, 3d, smime, o auto, según el nombre del paquete.</translation>
    </message>
    <message>
        <source>Go on in spite of what is found before the run: archives that will be replaced, too little room, files that will be deleted, and the like. What would lose files is refused all the same.</source>
        <translation>Continúa a pesar de lo que se encuentre antes de empezar: paquetes que se reemplazarán, poco espacio, archivos que se eliminarán y cosas así. Lo que haría perder archivos se rechaza de todos modos.</translation>
    </message>
    <message>
        <source>Print the run&apos;s record on standard output when it has ended.</source>
        <translation>Escribe el registro de la operación en la salida estándar cuando termina.</translation>
    </message>
    <message>
        <source>Show progress even where no terminal is.</source>
        <translation>Muestra el progreso aunque no haya terminal.</translation>
    </message>
    <message>
        <source>backup, extract, list, sync, tools or profiles.</source>
        <translation>backup, extract, list, sync, tools o profiles.</translation>
    </message>
    <message>
        <source>The profile; without it the one that the window would open.</source>
        <translation>El perfil; si se omite, el que abriría la ventana.</translation>
    </message>
    <message>
        <source>A command is missing: backup, extract, list, sync, tools or profiles.</source>
        <translation>Falta un comando: backup, extract, list, sync, tools o profiles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; there are backup, extract, list, sync, tools and profiles.</source>
        <translation>“%1” no es un comando; existen backup, extract, list, sync, tools y profiles.</translation>
    </message>
    <message>
        <source>Archives are missing: name them behind &quot;--&quot;.</source>
        <translation>Faltan los paquetes: indíquelos detrás de &quot;--&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many.</source>
        <translation>“%1” es una palabra de más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>“%1” no es compatible con “%2”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method; there are %2.</source>
        <translation>“%1” no es un método; existen %2.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>la entrada estándar</translation>
    </message>
    <message>
        <source>The first line of %1 is longer than any password can be. Give a file whose first line is the password alone.</source>
        <translation>La primera línea de %1 es más larga de lo que puede ser una contraseña. Indique un archivo cuya primera línea sea solo la contraseña.</translation>
    </message>
    <message>
        <source>The password in %1 is not UTF-8 text. Save the file as UTF-8.</source>
        <translation>La contraseña de %1 no es texto UTF-8. Guarde el archivo como UTF-8.</translation>
    </message>
    <message>
        <source>what was typed</source>
        <translation>lo que se ha escrito</translation>
    </message>
    <message>
        <source>The first line of %1 is empty. Write the password there.</source>
        <translation>La primera línea de %1 está vacía. Escriba en ella la contraseña.</translation>
    </message>
    <message>
        <source>Can&apos;t read the password from %1: %2. Give another file.</source>
        <translation>No se puede leer la contraseña de %1: %2. Indique otro archivo.</translation>
    </message>
    <message>
        <source>The password was not typed the same way twice. Nothing was done.</source>
        <translation>La contraseña no se escribió igual las dos veces. No se ha hecho nada.</translation>
    </message>
    <message>
        <source>Say --yes to go on all the same.</source>
        <translation>Añada --yes para continuar de todos modos.</translation>
    </message>
    <message>
        <source>No password was typed. Nothing was done.</source>
        <translation>No se escribió ninguna contraseña. No se ha hecho nada.</translation>
    </message>
    <message>
        <source>Password for the archives: </source>
        <translation>Contraseña de los paquetes: </translation>
    </message>
    <message>
        <source>The same password again: </source>
        <translation>La misma contraseña otra vez: </translation>
    </message>
    <message>
        <source>The two passwords are not the same. Type both again.</source>
        <translation>Las dos contraseñas no son iguales. Escriba las dos otra vez.</translation>
    </message>
    <message>
        <source>Do the same again, or remove them.</source>
        <translation>Repita la misma operación, o elimínelos.</translation>
    </message>
</context>
<context>
    <name>keychain</name>
    <message>
        <source>The keychain did what it was asked to.</source>
        <translation>El llavero hizo lo que se le pidió.</translation>
    </message>
    <message>
        <source>The keychain holds no such password.</source>
        <translation>El llavero no contiene esa contraseña.</translation>
    </message>
    <message>
        <source>The keychain holds a password of that name already. It stays as it is: remove it with your desktop&apos;s password program first, or choose another account name.</source>
        <translation>El llavero ya contiene una contraseña con ese nombre. Se queda como está: elimínela antes con el programa de contraseñas del escritorio, o elija otro nombre de cuenta.</translation>
    </message>
    <message>
        <source>No keychain service runs in this session. Start one (any Secret Service will do), or type the password.</source>
        <translation>En esta sesión no hay ningún servicio de llavero. Inicie uno (sirve cualquier Secret Service) o escriba la contraseña.</translation>
    </message>
    <message>
        <source>The keychain service has no default keychain. Create one with your desktop&apos;s password program.</source>
        <translation>El servicio de llavero no tiene un llavero predeterminado. Cree uno con el programa de contraseñas del escritorio.</translation>
    </message>
    <message>
        <source>The keychain is locked. Unlock it and try again.</source>
        <translation>El llavero está bloqueado. Desbloquéelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The keychain is still locked: its password was not given, or it could not be asked for. Try again, or unlock it with your desktop&apos;s password program.</source>
        <translation>El llavero sigue bloqueado: no se dio su contraseña, o no fue posible pedirla. Inténtelo de nuevo, o desbloquéelo con el programa de contraseñas del escritorio.</translation>
    </message>
    <message>
        <source>The keychain service refused. Look at your desktop&apos;s password program for the reason.</source>
        <translation>El servicio de llavero ha rechazado la petición. Busque el motivo en el programa de contraseñas del escritorio.</translation>
    </message>
    <message>
        <source>The keychain service does not answer. Try again later, or restart it; whether it stored something shows when it answers again.</source>
        <translation>El servicio de llavero no responde. Inténtelo más tarde o reinícielo; si guardó algo se verá cuando vuelva a responder.</translation>
    </message>
    <message>
        <source>The keychain was not waited for any longer.</source>
        <translation>Se ha dejado de esperar al llavero.</translation>
    </message>
    <message>
        <source>That password is not in the keychain.</source>
        <translation>Esa contraseña no está en el llavero.</translation>
    </message>
    <message>
        <source>A password of this kind does not have that attribute.</source>
        <translation>Una contraseña de este tipo no tiene ese atributo.</translation>
    </message>
    <message>
        <source>The keychain can&apos;t hold that name: it is missing, or is no proper text.</source>
        <translation>El llavero no puede guardar ese nombre: falta, o no es un texto válido.</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>(no subject)</source>
        <translation>(sin titular)</translation>
    </message>
    <message>
        <source>%1%2 – valid from %3 to %4</source>
        <translation>%1%2 – válido del %3 al %4</translation>
    </message>
    <message>
        <source>This certificate is not valid before %1. Check the computer&apos;s clock, or choose another one.</source>
        <translation>Este certificado no es válido antes del %1. Compruebe el reloj del equipo o elija otro.</translation>
    </message>
    <message>
        <source>This certificate has expired on %1. What it encrypted still opens with its private key; for new archives choose one that is valid.</source>
        <translation>Este certificado caducó el %1. Lo que cifró se sigue abriendo con su clave privada; para paquetes nuevos, elija uno que sea válido.</translation>
    </message>
    <message>
        <source>This certificate expires today.</source>
        <translation>Este certificado caduca hoy.</translation>
    </message>
    <message>
        <source>This certificate expires tomorrow.</source>
        <translation>Este certificado caduca mañana.</translation>
    </message>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>Este certificado caduca dentro de %n día, el %1.</numerusform>
            <numerusform>Este certificado caduca dentro de %n días, el %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>no hay ningún nombre</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>No se ha elegido ningún archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: %2.</source>
        <translation>“%1” no se puede leer: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>“%1” está vacío.</translation>
    </message>
    <message>
        <source>

OpenSSL says: </source>
        <translation>

OpenSSL dice: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like a certificate, but can&apos;t be read as one. It may be damaged.</source>
        <translation>“%1” parece un certificado, pero no se puede leer como tal. Puede estar dañado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a private key, not a certificate. Choose the certificate that belongs to it here, and this file as the private key.</source>
        <translation>“%1” contiene una clave privada, no un certificado. Elija aquí el certificado que le corresponde, y este archivo como clave privada.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out with:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</source>
        <translation>“%1” es un contenedor PKCS#12. Solo se acepta PEM, el formato de texto. Extraiga el certificado con:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it with:

openssl x509 -inform DER -in FILE -out certificate.pem</source>
        <translation>“%1” no es PEM sino binario (DER). Solo se acepta PEM, el formato de texto. Conviértalo con:

openssl x509 -inform DER -in FILE -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no PEM certificate: such a file has a line &quot;-----BEGIN CERTIFICATE-----&quot;.</source>
        <translation>“%1” no es un certificado PEM: un archivo así tiene una línea &quot;-----BEGIN CERTIFICATE-----&quot;.</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is encrypted with a pass phrase, which the program can&apos;t give to OpenSSL. Make a copy without one, and keep it where nobody else can read it:

openssl rsa -in FILE -out key.pem</source>
        <translation>La clave privada de “%1” está cifrada con una contraseña, que el programa no puede dar a OpenSSL. Haga una copia sin ella y guárdela donde nadie más pueda leerla:

openssl rsa -in FILE -out key.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a certificate, not a private key. Choose the private key that belongs to the certificate.</source>
        <translation>“%1” contiene un certificado, no una clave privada. Elija la clave privada que corresponde al certificado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Take the private key out with:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</source>
        <translation>“%1” es un contenedor PKCS#12. Extraiga la clave privada con:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is not an RSA key. Only RSA keys, with RSA certificates, can be used.</source>
        <translation>La clave privada de “%1” no es una clave RSA. Solo se pueden usar claves RSA, con certificados RSA.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no private key that can be read. It must be an RSA key in PEM, the text form.</source>
        <translation>“%1” no contiene ninguna clave privada que se pueda leer. Debe ser una clave RSA en PEM, el formato de texto.</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; does not belong to the certificate &quot;%2&quot;. Choose the key that the certificate was made with; no other one opens what the certificate encrypts.</source>
        <translation>La clave privada de “%1” no corresponde al certificado “%2”. Elija la clave con la que se hizo el certificado; ninguna otra abre lo que el certificado cifra.</translation>
    </message>
    <message>
        <source>No certificate is chosen yet. Choose it first: a private key is accepted only with the certificate that it belongs to.</source>
        <translation>Aún no se ha elegido ningún certificado. Elíjalo primero: una clave privada se acepta solo con el certificado al que corresponde.</translation>
    </message>
    <message>
        <source>The certificate itself can&apos;t be used any more. </source>
        <translation>El propio certificado ya no se puede usar. </translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is backed up.</source>
        <translation>No se ha dado ninguna contraseña. Escriba una en la pestaña Contraseña; sin contraseña no se hace ninguna copia.</translation>
    </message>
    <message>
        <source>The password holds a zero byte (is its file perhaps UTF-16?), and all behind it would be lost. Use a password of ordinary characters, in UTF-8.</source>
        <translation>La contraseña contiene un byte cero (¿quizá su archivo está en UTF-16?), y todo lo que va detrás se perdería. Use una contraseña de caracteres corrientes, en UTF-8.</translation>
    </message>
    <message>
        <source>The password holds a line break, and all behind it would be lost. Use one of a single line.</source>
        <translation>La contraseña contiene un salto de línea, y todo lo que va detrás se perdería. Use una de una sola línea.</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes, and would be cut. Use a shorter one.</source>
        <translation>La contraseña tiene más de %1 bytes y quedaría cortada. Use una más corta.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>No se ha elegido ningún certificado. Elija uno en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>The key of the certificate &quot;%1&quot; has %2 bits; less than %3 can be broken.</source>
        <translation>La clave del certificado “%1” tiene %2 bits; las de menos de %3 se pueden romper.</translation>
    </message>
    <message>
        <source>%1, %2 bits</source>
        <translation>%1, %2 bits</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>tipo desconocido</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; is not there, or can&apos;t be read. Choose another one on the Password tab.</source>
        <translation>El certificado “%1” no está ahí o no se puede leer. Elija otro en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is chosen as the certificate, but it is a private key. Choose the certificate that belongs to it on the Password tab.</source>
        <translation>“%1” está elegido como certificado, pero es una clave privada. Elija en la pestaña Contraseña el certificado que le corresponde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no certificate in the form that is needed here, which is PEM, a text file. Choose another one on the Password tab.</source>
        <translation>“%1” no es un certificado en el formato que se necesita aquí, PEM, un archivo de texto. Elija otro en la pestaña Contraseña.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; has a key of another kind than RSA, and only RSA keys can be used here. Choose another one on the Password tab.</source>
        <translation>El certificado “%1” tiene una clave que no es RSA, y aquí solo se pueden usar claves RSA. Elija otro en la pestaña Contraseña.</translation>
    </message>
</context>
<context>
    <name>outlets</name>
    <message>
        <source>Wait...</source>
        <translation>Espere...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>passwords</name>
    <message>
        <source>Nothing that is encrypted for this certificate can be opened without its private key: make sure that you have it, and a copy in a safe place.</source>
        <translation>Nada de lo que se cifre para este certificado se puede abrir sin su clave privada: asegúrese de tenerla, y de tener otra copia en un lugar seguro.</translation>
    </message>
    <message>
        <source>No private key is chosen. </source>
        <translation>No se ha elegido ninguna clave privada. </translation>
    </message>
    <message>
        <source>The private key is not where it was. </source>
        <translation>La clave privada no está donde estaba. </translation>
    </message>
    <message>
        <source>Choose a certificate</source>
        <translation>Elegir un certificado</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Elegir la clave privada</translation>
    </message>
    <message>
        <source>It is no text, in UTF-8. Another program stored it: choose another account.</source>
        <translation>No es texto en UTF-8. La guardó otro programa: elija otra cuenta.</translation>
    </message>
    <message>
        <source>The password of &quot;%1&quot; was fetched from the keychain.</source>
        <translation>Se ha obtenido del llavero la contraseña de “%1”.</translation>
    </message>
    <message>
        <source>The keychain holds no password of &quot;%1&quot;. Check the account name; or type the password and store it.</source>
        <translation>El llavero no contiene ninguna contraseña de “%1”. Compruebe el nombre de la cuenta, o escriba la contraseña y guárdela.</translation>
    </message>
    <message>
        <source>What the keychain holds of &quot;%1&quot; is of no use. </source>
        <translation>Lo que el llavero contiene de “%1” no sirve. </translation>
    </message>
    <message>
        <source>Nothing was stored. </source>
        <translation>No se ha guardado nada. </translation>
    </message>
    <message>
        <source>The password was stored in the keychain for &quot;%1&quot;.</source>
        <translation>La contraseña de “%1” se ha guardado en el llavero.</translation>
    </message>
    <message>
        <source>The keychain holds a password of &quot;%1&quot; already, and it stays as it is. Choose another account name, or remove the old one in your desktop&apos;s password program first.</source>
        <translation>El llavero ya contiene una contraseña de “%1”, y se queda como está. Elija otro nombre de cuenta, o elimine antes la antigua en el programa de contraseñas del escritorio.</translation>
    </message>
    <message>
        <source>The keychain is unlocked.</source>
        <translation>El llavero está desbloqueado.</translation>
    </message>
    <message>
        <source>Asking the keychain…</source>
        <translation>Consultando el llavero…</translation>
    </message>
</context>
<context>
    <name>plist</name>
    <message>
        <source>declarations within the document are not supported</source>
        <translation>no se admiten declaraciones dentro del documento</translation>
    </message>
    <message>
        <source>it holds a tag of more than %1 characters</source>
        <translation>contiene una etiqueta de más de %1 caracteres</translation>
    </message>
    <message>
        <source>%1: it can&apos;t be written: %2</source>
        <translation>%1: no se puede escribir: %2</translation>
    </message>
    <message>
        <source>its links lead in a circle</source>
        <translation>sus enlaces llevan en círculo</translation>
    </message>
    <message>
        <source>the root element is &lt;%1&gt;, not &lt;plist&gt;</source>
        <translation>el elemento raíz es &lt;%1&gt;, no &lt;plist&gt;</translation>
    </message>
    <message>
        <source>the list is empty</source>
        <translation>la lista está vacía</translation>
    </message>
    <message>
        <source>the root is &lt;%1&gt;, not a dictionary</source>
        <translation>la raíz es &lt;%1&gt;, no un diccionario</translation>
    </message>
    <message>
        <source>something follows the root dictionary</source>
        <translation>hay algo detrás del diccionario raíz</translation>
    </message>
    <message>
        <source>there is text between the elements</source>
        <translation>hay texto entre los elementos</translation>
    </message>
    <message>
        <source>entities are not supported</source>
        <translation>no se admiten entidades</translation>
    </message>
    <message>
        <source>its encoding is %1, not UTF-8</source>
        <translation>su codificación es %1, no UTF-8</translation>
    </message>
    <message>
        <source>the document type is not that of a property list</source>
        <translation>el tipo de documento no es el de una lista de propiedades</translation>
    </message>
    <message>
        <source>the attribute %1 is unknown</source>
        <translation>el atributo %1 es desconocido</translation>
    </message>
    <message>
        <source>version %1 of the format is unknown</source>
        <translation>la versión %1 del formato es desconocida</translation>
    </message>
    <message>
        <source>the key %1 is there twice</source>
        <translation>la clave %1 está dos veces</translation>
    </message>
    <message>
        <source>the key %1 has no value</source>
        <translation>la clave %1 no tiene valor</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands where a key is expected</source>
        <translation>hay &lt;%1&gt; donde se espera una clave</translation>
    </message>
    <message>
        <source>it is nested deeper than %1 levels</source>
        <translation>tiene más de %1 niveles de anidamiento</translation>
    </message>
    <message>
        <source>the element &lt;%1&gt; is unknown</source>
        <translation>el elemento &lt;%1&gt; es desconocido</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <translation>“%1” no es un número entero</translation>
    </message>
    <message>
        <source>the integer %1 does not fit into 64 bits</source>
        <translation>el número entero %1 no cabe en 64 bits</translation>
    </message>
    <message>
        <source>“%1” is not a real number</source>
        <translation>“%1” no es un número real</translation>
    </message>
    <message>
        <source>the data is not Base64</source>
        <translation>los datos no están en Base64</translation>
    </message>
    <message>
        <source>“%1” is not a date like 2001-12-31T23:59:59Z</source>
        <translation>“%1” no es una fecha como 2001-12-31T23:59:59Z</translation>
    </message>
    <message>
        <source>there is text in &lt;true&gt; or &lt;false&gt;</source>
        <translation>hay texto en &lt;true&gt; o &lt;false&gt;</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>ocupa más de %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is a binary property list; only XML ones can be read</source>
        <translation>es una lista de propiedades binaria; solo se pueden leer las de XML</translation>
    </message>
    <message>
        <source>%1: it is not UTF-8</source>
        <translation>%1: no está en UTF-8</translation>
    </message>
    <message>
        <source>it can&apos;t be put into XML</source>
        <translation>no se puede pasar a XML</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB</source>
        <translation>ocuparía más de %1 MiB</translation>
    </message>
    <message>
        <source>there is nothing to write</source>
        <translation>no hay nada que escribir</translation>
    </message>
    <message>
        <source>it has a character that such a file can&apos;t hold (%1)</source>
        <translation>contiene un carácter que un archivo así no admite (%1)</translation>
    </message>
    <message>
        <source>the value under “%2” is nested deeper than %1 levels</source>
        <translation>el valor de “%2” tiene más de %1 niveles de anidamiento</translation>
    </message>
    <message>
        <source>the value under “%1” is a date that the file can&apos;t hold</source>
        <translation>el valor de “%1” es una fecha que el archivo no admite</translation>
    </message>
    <message>
        <source>the value under “%2” has a character that the file can&apos;t hold (%1)</source>
        <translation>el valor de “%2” contiene un carácter que el archivo no admite (%1)</translation>
    </message>
</context>
<context>
    <name>profiles</name>
    <message>
        <source>A profile needs a name, and none was typed.</source>
        <translation>Un perfil necesita un nombre, y no se ha escrito ninguno.</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Choose another name.</source>
        <translation>Ya existe un perfil “%1”. Elija otro nombre.</translation>
    </message>
    <message>
        <source>There can be no profiles, for their file can&apos;t be read:
%1
Repair it, or move it away, and start the program again.</source>
        <translation>No puede haber perfiles, porque su archivo no se puede leer:
%1
Repárelo o muévalo a otro lugar, y vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>No copy could be saved either:
%1</source>
        <translation>Tampoco se pudo guardar una copia:
%1</translation>
    </message>
    <message>
        <source>Choose a folder for the copy</source>
        <translation>Elegir una carpeta para la copia</translation>
    </message>
    <message>
        <source>Another window or program has changed the file of the %1 since it was read here, and both of you have changed %2.

Whichever you choose, the other one is kept beside the file. What only one of you has changed is saved in any case.</source>
        <translation>Otra ventana u otro programa ha cambiado el archivo de los %1 desde que se leyó aquí, y por ambas partes se ha cambiado %2.

Elija lo que elija, lo otro se conserva junto al archivo. Lo que solo ha cambiado una de las partes se guarda en todo caso.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be saved, for their file could not be read:
%2

Repair it, or move it away, and start the program again.</source>
        <translation>No se pueden guardar los %1, porque su archivo no se pudo leer:
%2

Repárelo o muévalo a otro lugar, y vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>Another window or program has changed %1: that is taken over.</source>
        <translation>Otra ventana u otro programa ha cambiado %1: se adopta ese cambio.</translation>
    </message>
    <message>
        <source>The %1 could not be saved:
%2

What you changed is kept only as long as the program runs. Make room, or make the folder writable, and save again.</source>
        <translation>No se pudieron guardar los %1:
%2

Lo que ha cambiado se conserva solo mientras el programa esté abierto. Libere espacio, o haga que se pueda escribir en la carpeta, y guarde de nuevo.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>perfiles</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>ajustes</translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message>
        <source>the program was ended in the middle of it</source>
        <translation>el programa se cerró a mitad del trabajo</translation>
    </message>
    <message>
        <source>The program was ended before the run was.</source>
        <translation>El programa se cerró antes de que acabara la operación.</translation>
    </message>
    <message>
        <source>no other name is free for it</source>
        <translation>no hay ningún otro nombre libre para él</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>“%1” es una carpeta, y durante un rato se necesita un archivo con ese nombre. Cámbiele el nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way and can&apos;t be given another name: %2.</source>
        <translation>“%1” estorba y no se le puede dar otro nombre: %2.</translation>
    </message>
    <message>
        <source>Something puts %1 under the name &quot;%2&quot; again and again. Choose a folder that nobody else writes to.</source>
        <translation>Algo vuelve a poner %1 una y otra vez con el nombre “%2”. Elija una carpeta en la que no escriba nadie más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been replaced by %2 of somebody else&apos;s. Choose a folder that nobody else writes to.</source>
        <translation>“%1” ha sido reemplazado por %2 que pertenece a otros. Elija una carpeta en la que no escriba nadie más.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be made: %2</source>
        <translation>“%1” no se puede crear: %2</translation>
    </message>
    <message>
        <source>%1: the tool ended with status %2 and did not say why.</source>
        <translation>%1: la herramienta acabó con el estado %2 y no dijo por qué.</translation>
    </message>
    <message>
        <source>%1: the tool said nothing, and did not make &quot;%2&quot;.</source>
        <translation>%1: la herramienta no dijo nada y no creó “%2”.</translation>
    </message>
    <message>
        <source>Another run is writing into &quot;%1&quot;, or its tools still are. Wait until it has ended.</source>
        <translation>Otra operación está escribiendo en “%1”, o aún lo hacen sus herramientas. Espere a que acabe.</translation>
    </message>
    <message>
        <source>Collecting</source>
        <translation>Reuniendo</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Cifrando</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Empaquetando</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Terminando</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>Probando</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Desempaquetando</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Descifrando</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Restaurando</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>Poniendo en su sitio</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copiando</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparando</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Quedan unos segundos</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Quedan unos %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Quedan unos %1 min</translation>
    </message>
    <message>
        <source>About %1 h left</source>
        <translation>Quedan unas %1 h</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was in the way and is called &quot;%2&quot; now.</source>
        <translation>“%1” estorbaba y se llama ahora “%2”.</translation>
    </message>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>Estorbaba %n más, y su nombre empieza ahora por “kept-”.</numerusform>
            <numerusform>Estorbaban %n más, y sus nombres empiezan ahora por “kept-”.</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; can&apos;t be made</source>
        <translation>la carpeta “%1” no se puede crear</translation>
    </message>
    <message>
        <source>It can&apos;t be written down what this run does: %1. If it is interrupted, nobody could tell what it leaves from files of your own.</source>
        <translation>No se puede anotar lo que hace esta operación: %1. Si se interrumpe, lo que deje no se podría distinguir de sus propios archivos.</translation>
    </message>
    <message>
        <source>The OpenSSL program that is chosen on the Tools tab makes something else of a password than these archives need, so it can&apos;t open them. Choose Quillorent&apos;s own there; the password may be right.</source>
        <translation>El programa OpenSSL elegido en la pestaña Herramientas hace con la contraseña algo distinto de lo que necesitan estos paquetes, y por eso no puede abrirlos. Elija allí el propio de Quillorent; puede que la contraseña sea correcta.</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>“%1” may not be written, nor moved out of the way: what is changed can&apos;t be saved.</source>
        <translation>No se puede escribir en “%1” ni moverlo a otro lugar: lo que se cambie no se puede guardar.</translation>
    </message>
    <message>
        <source>“%1” may not be written by this user. It is kept as “%2”, and a new one with the program&apos;s own settings has taken its place.</source>
        <translation>Este usuario no puede escribir en “%1”. Se conserva como “%2”, y uno nuevo con los ajustes propios del programa ha ocupado su lugar.</translation>
    </message>
    <message>
        <source>“%1” could not be read when it was saved over. What it held is kept as “%2”.</source>
        <translation>“%1” no se pudo leer cuando se sobrescribió. Lo que contenía se conserva como “%2”.</translation>
    </message>
    <message>
        <source>What others had changed in “%1” is kept as “%2”.</source>
        <translation>Lo que otros habían cambiado en “%1” se conserva como “%2”.</translation>
    </message>
    <message>
        <source>What you had changed in “%1” is kept as “%2”.</source>
        <translation>Lo que usted había cambiado en “%1” se conserva como “%2”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made</source>
        <translation>No se puede crear la carpeta “%1”</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read, and no copy of it can be kept: so it is not saved over</source>
        <translation>“%1” no se puede leer, ni se puede conservar una copia de él: por eso no se sobrescribe</translation>
    </message>
    <message>
        <source>Of “%1” no copy can be kept: so it is not saved over</source>
        <translation>No se puede conservar una copia de “%1”: por eso no se sobrescribe</translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message>
        <source>The list of what is to be synchronised can&apos;t be written to &quot;%1&quot;: %2.</source>
        <translation>No se puede escribir la lista de lo que hay que sincronizar en “%1”: %2.</translation>
    </message>
    <message>
        <source>deleted at the destination</source>
        <translation>eliminado en el destino</translation>
    </message>
    <message>
        <source>replaced there, removed here</source>
        <translation>reemplazado allí, eliminado aquí</translation>
    </message>
    <message>
        <source>moved there</source>
        <translation>movido allí</translation>
    </message>
    <message>
        <source>there already, removed here</source>
        <translation>ya está allí, eliminado aquí</translation>
    </message>
    <message>
        <source>folder made</source>
        <translation>carpeta creada</translation>
    </message>
    <message>
        <source>date or permissions set</source>
        <translation>fecha o permisos ajustados</translation>
    </message>
    <message>
        <source>Nothing would be copied or deleted.</source>
        <translation>No copiadoría ni se eliminaría nada.</translation>
    </message>
    <message>
        <source>%1. %2 would be copied.</source>
        <translation>%1. Se copiarían %2.</translation>
    </message>
    <message>
        <source>Delete %1 there, remove %2 here?</source>
        <translation>¿Eliminar %1 allí y %2 aquí?</translation>
    </message>
    <message>
        <source>Delete %1 there?</source>
        <translation>¿Eliminar %1 allí?</translation>
    </message>
    <message>
        <source>Remove %1 here?</source>
        <translation>¿Eliminar %1 aquí?</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; shows another key than before; someone may be in its place. Ask who runs it before you connect again.</source>
        <translation>El servidor “%1” presenta una clave distinta de la de antes; puede que alguien ocupe su lugar. Pregunte a quien lo administra antes de volver a conectarse.</translation>
    </message>
    <message>
        <source>ssh does not know the server &quot;%1&quot; yet. Connect to it once in a terminal (ssh %1), compare the key that it shows, and try again.</source>
        <translation>ssh aún no conoce el servidor “%1”. Conéctese a él una vez en un terminal (ssh %1), compare la clave que presenta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is no server of the name &quot;%1&quot;, or this computer is offline. Check the name.</source>
        <translation>No existe ningún servidor con el nombre “%1”, o este equipo no tiene conexión. Compruebe el nombre.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses the connection. Check that its ssh service runs; a port other than 22 belongs into ~/.ssh/config.</source>
        <translation>El servidor “%1” rechaza la conexión. Compruebe que su servicio ssh esté en marcha; un puerto distinto del 22 se indica en ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached. Check the network, and that the server is on.</source>
        <translation>No se puede llegar al servidor “%1”. Compruebe la red y que el servidor esté encendido.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in, since it was sent an empty user name. Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own.</source>
        <translation>El servidor “%1” no le ha dejado entrar, porque se le envió un nombre de usuario vacío. Indique el usuario: entonces ssh toma el de ~/.ssh/config o, si no, el suyo propio.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in. Nobody can type a password here: log in by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).</source>
        <translation>El servidor “%1” no le ha dejado entrar. Aquí nadie puede escribir una contraseña: entre con una clave que ssh encuentre sin preguntar (véanse ssh-agent, ~/.ssh/config).</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no rsync. Install it there.</source>
        <translation>El servidor “%1” no tiene rsync. Instálelo allí.</translation>
    </message>
    <message>
        <source>rsync does not understand its arguments. Check &quot;rsyncparams&quot; and &quot;rsyncexcludes&quot; in the settings file: both must be there, and each be one option.</source>
        <translation>rsync no entiende sus argumentos. Compruebe &quot;rsyncparams&quot; y &quot;rsyncexcludes&quot; en el archivo de ajustes: ambos deben estar, y cada uno debe ser una sola opción.</translation>
    </message>
    <message>
        <source>The server took the port for the beginning of the folder&apos;s path. Leave the port empty, and put it into ~/.ssh/config.</source>
        <translation>El servidor tomó el puerto por el principio de la ruta de la carpeta. Deje vacío el puerto e indíquelo en ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The folder in which &quot;%2&quot; is to be made does not exist. Connect its disk, or choose another destination.</source>
        <translation>No existe la carpeta en la que hay que crear “%2”. Conecte su disco o elija otro destino.</translation>
    </message>
    <message>
        <source>The destination is full. Make room there and run it again: what is there is not copied twice.</source>
        <translation>El destino está lleno. Libere espacio en él y repita la operación: lo que ya está no copiado dos veces.</translation>
    </message>
    <message>
        <source>A file is larger than the destination can take. Choose another disk, or leave the file out.</source>
        <translation>Un archivo es más grande de lo que admite el destino. Elija otro disco o deje fuera el archivo.</translation>
    </message>
    <message>
        <source>The destination &quot;%2&quot; can only be read. Choose another one.</source>
        <translation>El destino “%2” es de solo lectura. Elija otro.</translation>
    </message>
    <message>
        <source>You may not read some of the files; they are not copied.</source>
        <translation>No tiene permiso para leer algunos de los archivos; no copiadon.</translation>
    </message>
    <message>
        <source>You may not write to the destination &quot;%2&quot;. Choose another one, or have its permissions changed.</source>
        <translation>No tiene permiso para escribir en el destino “%2”. Elija otro, o haga que se cambien sus permisos.</translation>
    </message>
    <message>
        <source>An entry of the list is not where it was; it is not copied. Remove it from the list, or bring it back.</source>
        <translation>Una entrada de la lista no está donde estaba; no copiado. Quítela de la lista o devuélvala a su sitio.</translation>
    </message>
    <message>
        <source>Files disappeared while they were to be copied. All others are copied; run it again where that matters.</source>
        <translation>Algunos archivos desaparecieron cuando se iban a copiar. Todos los demás están copiados; repita la operación si eso importa.</translation>
    </message>
    <message>
        <source>A folder that is gone here could not be deleted at the destination: it holds files that rsync leaves alone.</source>
        <translation>Una carpeta que ya no está aquí no se pudo eliminar en el destino: contiene archivos que rsync no toca.</translation>
    </message>
    <message>
        <source>The destination can&apos;t keep all owners, dates or permissions of the files.</source>
        <translation>El destino no puede conservar todos los propietarios, fechas o permisos de los archivos.</translation>
    </message>
    <message>
        <source>The connection to &quot;%1&quot; ended early. Run it again: what is there is not copied twice.</source>
        <translation>La conexión con “%1” se cortó antes de tiempo. Repita la operación: lo que ya está no copiado dos veces.</translation>
    </message>
    <message>
        <source>ssh has noted the server&apos;s key, and what it said counts as a failure. Run it once more.</source>
        <translation>ssh ha anotado la clave del servidor, y lo que dijo cuenta como un fallo. Repita la operación una vez más.</translation>
    </message>
    <message>
        <source> Nothing was deleted at the destination.</source>
        <translation> No se ha eliminado nada en el destino.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty, and everything in its copy would be deleted. Is its disk connected?</source>
        <translation>“%1” está vacío, y se eliminaría todo lo que hay en su copia. ¿Está conectado su disco?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie under the common folder &quot;%2&quot; as the list is written, and will not be found. Synchronise it from a profile of its own.</source>
        <translation>“%1” no está dentro de la carpeta común “%2” tal como está escrita la lista, y no se encontrará. Sincronícelo desde un perfil propio.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one. Choose another destination.</source>
        <translation>El destino está dentro de “%1”, así que cada vez copiadorían las copias de la anterior. Elija otro destino.</translation>
    </message>
    <message>
        <source>Copies what is new or was changed here. Files that are newer at the destination stay as they are.</source>
        <translation>Copia lo que es nuevo o se ha cambiado aquí. Los archivos que son más nuevos en el destino se quedan como están.</translation>
    </message>
    <message>
        <source>Copies every file whose content differs, also over a newer one at the destination. All files are read on both sides, which takes long.</source>
        <translation>Copia cada archivo cuyo contenido es distinto, también sobre uno más nuevo en el destino. Se leen todos los archivos en ambos lados, lo que lleva mucho tiempo.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. And deletes at the destination, inside the listed folders, what is not here: a second run deletes there what the first one moved there, and then it is nowhere.</source>
        <translation>MUEVE los archivos: se eliminan aquí cuando están en el destino. Y elimina en el destino, dentro de las carpetas de la lista, lo que no está aquí: una segunda vez elimina allí lo que la primera movió allí, y entonces no queda en ninguna parte.</translation>
    </message>
    <message>
        <source>Deletes at the destination, inside the listed folders, everything that is not here any more.</source>
        <translation>Elimina en el destino, dentro de las carpetas de la lista, todo lo que ya no está aquí.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. Folders stay, empty.</source>
        <translation>MUEVE los archivos: se eliminan aquí cuando están en el destino. Las carpetas se quedan, vacías.</translation>
    </message>
    <message>
        <source>Deletes nothing, neither here nor there.</source>
        <translation>No elimina nada, ni aquí ni allí.</translation>
    </message>
    <message>
        <source>Without a user the server is sent an empty name, which it refuses: fill one in. Which name is used is for ~/.ssh/config to say; otherwise it is your own.</source>
        <translation>Sin usuario se envía al servidor un nombre vacío, que este rechaza: indique uno. Qué nombre se usa lo decide ~/.ssh/config; si no, es el suyo propio.</translation>
    </message>
    <message>
        <source>The port becomes the beginning of the folder&apos;s path on the server. Leave it empty, and put it into ~/.ssh/config.</source>
        <translation>El puerto pasa a ser el principio de la ruta de la carpeta en el servidor. Déjelo vacío e indíquelo en ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The folder must exist on the server: a single file would be stored under its name instead.</source>
        <translation>La carpeta debe existir en el servidor: si no, un archivo suelto se guardaría con el nombre de ella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will not be found: its path holds that of the common folder &quot;%2&quot; in the wrong place. Synchronise it from a profile of its own.</source>
        <translation>“%1” no se encontrará: su ruta contiene la de la carpeta común “%2” en el lugar equivocado. Sincronícelo desde un perfil propio.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one.</source>
        <translation>El destino está dentro de “%1”, así que cada vez copiadorían las copias de la anterior.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no absolute path. Remove it from the list and add it again.</source>
        <translation>“%1” no es una ruta absoluta. Quítela de la lista y añádala de nuevo.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; holds a line break, which rsync&apos;s list can&apos;t. Put the folder above it on the list instead.</source>
        <translation>La ruta “%1” contiene un salto de línea, que la lista de rsync no admite. Ponga en la lista la carpeta que está por encima.</translation>
    </message>
    <message>
        <source>No server is given. Type its name, or switch the remote destination off.</source>
        <translation>No se ha indicado ningún servidor. Escriba su nombre o desactive el destino en un servidor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no server&apos;s name.</source>
        <translation>“%1” no es el nombre de un servidor.</translation>
    </message>
    <message>
        <source>The list is empty. Add the files and folders that are to be synchronised.</source>
        <translation>La lista está vacía. Añada los archivos y carpetas que quiera sincronizar.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the files go to.</source>
        <translation>No se ha elegido ningún destino. Elija la carpeta a la que van los archivos.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is no absolute path. Choose the folder again.</source>
        <translation>El destino “%1” no es una ruta absoluta. Elija de nuevo la carpeta.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is a file. Choose a folder.</source>
        <translation>El destino “%1” es un archivo. Elija una carpeta.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is the folder that the files lie in already. Choose another one.</source>
        <translation>El destino “%1” es la carpeta en la que ya están los archivos. Elija otra.</translation>
    </message>
    <message>
        <source>The destination folder &quot;%1&quot; can&apos;t be made. Choose one that you may write to.</source>
        <translation>No se puede crear la carpeta de destino “%1”. Elija una en la que tenga permiso para escribir.</translation>
    </message>
    <message>
        <source>Cancelled before it began.
</source>
        <translation>Cancelado antes de empezar.
</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>rsync&apos;s message is not readable text.</source>
        <translation>El mensaje de rsync no es texto legible.</translation>
    </message>
    <message>
        <source>It ended with status %1 and did not say why; not everything is copied. Run it again.</source>
        <translation>Acabó con el estado %1 y no dijo por qué; no está todo copiado. Repita la operación.</translation>
    </message>
    <message>
        <source>Preview cancelled.</source>
        <translation>Vista previa cancelada.</translation>
    </message>
    <message>
        <source>Cancelled. What was copied stays; the next run goes on from there.</source>
        <translation>Cancelado. Lo copiado se conserva; la próxima vez se continúa desde ahí.</translation>
    </message>
    <message>
        <source>Failed. %1</source>
        <translation>Ha fallado. %1</translation>
    </message>
    <message>
        <source>Synchronised %1 in %2.</source>
        <translation>Sincronización hecha: %1, en %2.</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>reemplazado</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>copiado</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>rsync, the program that copies, reported a problem; its own words follow.</source>
        <translation>rsync, el programa que copia, comunicó un problema; a continuación, sus propias palabras.</translation>
    </message>
    <message>
        <source>Beside &quot;%1&quot; there is a name that differs in upper and lower case only. The destination may take both for one, so that only one of them arrives. Rename one of them.</source>
        <translation>Junto a “%1” hay un nombre que solo se diferencia en mayúsculas y minúsculas. El destino puede tomar los dos por uno solo, de modo que solo llegue uno de ellos. Cambie el nombre de uno de los dos.</translation>
    </message>
</context>
<context>
    <name>synchronisation</name>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Añadir carpetas y archivos para sincronizar</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Elegir la carpeta de origen</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Elegir el destino de la sincronización</translation>
    </message>
    <message>
        <source>The profile deletes files, at the destination or here. The window&apos;s preview shows which.</source>
        <translation>El perfil elimina archivos, en el destino o aquí. La vista previa de la ventana muestra cuáles.</translation>
    </message>
    <message>
        <source>Comparing both sides…</source>
        <translation>Comparando ambos lados…</translation>
    </message>
    <message>
        <source>There is more to delete by now. </source>
        <translation>Entretanto hay más que eliminar. </translation>
    </message>
    <message>
        <source>Looking at both sides…</source>
        <translation>Examinando ambos lados…</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Sincronizando…</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Tiempo: %1</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Choose a tool</source>
        <translation>Elegir una herramienta</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: a name or a password for it holds a zero byte.
</source>
        <translation>No se puede iniciar “%1”: un nombre o una contraseña para él contiene un byte cero.
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2 (%3).
</source>
        <translation>“%1” fue terminado por la señal %2 (%3).
</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: %2. Choose the tool&apos;s path on the Tools tab.</source>
        <translation>No se puede iniciar “%1”: %2. Elija la ruta de la herramienta en la pestaña Herramientas.</translation>
    </message>
    <message>
        <source>This OpenSSL can&apos;t be used by itself: it makes something else of a password than archives of this program need, and complains of it. Choose Quillorent&apos;s own &quot;openssl&quot;, which uses it.</source>
        <translation>Este OpenSSL no se puede usar por sí solo: hace con la contraseña algo distinto de lo que necesitan los paquetes de este programa, y se queja de ello. Elija el &quot;openssl&quot; propio de Quillorent, que lo utiliza.</translation>
    </message>
    <message>
        <source>the tool&apos;s message is not readable text</source>
        <translation>el mensaje de la herramienta no es texto legible</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListModel</name>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>comes with the first volume of its set</source>
        <translation>va con el primer volumen de su conjunto</translation>
    </message>
    <message>
        <source>not extracted: its path has &quot;part&quot; and a number, as later volumes have it</source>
        <translation>no se extrae: su ruta contiene “part” y un número, como la de los volúmenes posteriores</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Paquete</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListView</name>
    <message>
        <source>Drop archives, or a folder of them, here, or press Add</source>
        <translation>Suelte aquí paquetes, o una carpeta con ellos, o pulse Añadir</translation>
    </message>
</context>
<context>
    <name>ui::BackupList</name>
    <message>
        <source>its first part is missing</source>
        <translation>falta su primera parte</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incompleto</translation>
    </message>
    <message>
        <source>Incomplete or mixed: %1.</source>
        <translation>Incompleto o mezclado: %1.</translation>
    </message>
    <message>
        <source>What was backed up</source>
        <translation>Contenido de la copia</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>ui::BackupOffer</name>
    <message>
        <source>Bac&amp;kups in &quot;%1&quot;: tick what you want back</source>
        <translation>Copias &amp;de seguridad en “%1”: marque lo que quiera recuperar</translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message>
        <source>1 folder</source>
        <translation>1 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n carpeta</numerusform>
            <numerusform>%n carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>3 of 4 folders</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>48 GB in 11 min</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Backed up %1</source>
        <translation>Copia hecha %1</translation>
    </message>
    <message>
        <source>Cancelled %1</source>
        <translation>Cancelada %1</translation>
    </message>
    <message>
        <source>backed up by then: %1</source>
        <translation>copiado hasta entonces: %1</translation>
    </message>
    <message>
        <source>The backup that began %1 was interrupted</source>
        <translation>La copia que empezó %1 se interrumpió</translation>
    </message>
    <message>
        <source>Backed up %1, but not everything</source>
        <translation>Copia hecha %1, pero no de todo</translation>
    </message>
    <message>
        <source>The backup failed %1</source>
        <translation>La copia falló %1</translation>
    </message>
    <message>
        <source>backed up: %1</source>
        <translation>copiado: %1</translation>
    </message>
    <message>
        <source>What failed: “%1” – %2</source>
        <translation>Lo que falló: “%1” – %2</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Lo que puede hacer: %1</translation>
    </message>
    <message>
        <source>What to do: back up again. The next backup first puts in order what this one left.</source>
        <translation>Lo que puede hacer: vuelva a hacer la copia. La próxima copia pone primero en orden lo que dejó esta.</translation>
    </message>
    <message>
        <source>Left out: “%1” – %2. Connect its disk, or take it off the list.</source>
        <translation>Omitido: “%1” – %2. Conecte su disco o quítelo de la lista.</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;, which is not encrypted</source>
        <translation>Lo que quedó: “%1”, sin cifrar</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;</source>
        <translation>Lo que quedó: “%1”</translation>
    </message>
    <message>
        <source>“%1” was in the way and is called “%2” now.</source>
        <translation>“%1” estorbaba y se llama ahora “%2”.</translation>
    </message>
    <message>
        <source>What was left: nothing. Archives from earlier backups are as they were.</source>
        <translation>Lo que quedó: nada. Los paquetes de copias anteriores están como estaban.</translation>
    </message>
    <message>
        <source>What failed, what to do and what was left</source>
        <translation>Lo que falló, lo que puede hacer y lo que quedó</translation>
    </message>
</context>
<context>
    <name>ui::CompressionHint</name>
    <message>
        <source>archives about %1 % smaller</source>
        <translation>paquetes cerca de un %1&#xa0;% más pequeños</translation>
    </message>
    <message>
        <source>gains next to nothing here</source>
        <translation>aquí no se gana casi nada</translation>
    </message>
</context>
<context>
    <name>ui::ContentsModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minuto</numerusform>
            <numerusform>%n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>What &quot;%1&quot; holds</source>
        <translation>Contenido de “%1”</translation>
    </message>
    <message>
        <source>Nothing is chosen yet: tick files or folders.</source>
        <translation>Aún no se ha elegido nada: marque archivos o carpetas.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Elegido: %1, %2. Tardará alrededor de %3, lo mismo que examinar el paquete: para ello hay que descifrarlo entero. No se reemplaza nada suyo: si un archivo ya existe y es distinto, recibe un nombre que empieza por “kept-”.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::FirstSteps</name>
    <message>
        <source>Your first backup, in three steps</source>
        <translation>Su primera copia de seguridad, en tres pasos</translation>
    </message>
    <message>
        <source>What is to be kept safe?</source>
        <translation>¿Qué quiere proteger?</translation>
    </message>
    <message>
        <source>Choose the folders that you can&apos;t do without, or drop them here.</source>
        <translation>Elija las carpetas de las que no puede prescindir, o suéltelas aquí.</translation>
    </message>
    <message>
        <source>Choose folders…</source>
        <translation>Elegir carpetas…</translation>
    </message>
    <message>
        <source>Where to?</source>
        <translation>¿Adónde va?</translation>
    </message>
    <message>
        <source>Choose a folder on another disk: one that breaks or is stolen takes all with it.</source>
        <translation>Elija una carpeta en otro disco: si uno se estropea o lo roban, se lo lleva todo consigo.</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>Elegir un lugar…</translation>
    </message>
    <message>
        <source>What locks it?</source>
        <translation>¿Con qué se cierra?</translation>
    </message>
    <message>
        <source>Think of a password. Without it nobody can open the backup, you neither: write it down in a safe place.</source>
        <translation>Piense una contraseña. Sin ella nadie puede abrir la copia, tampoco usted: anótela en un lugar seguro.</translation>
    </message>
    <message>
        <source>Set a password…</source>
        <translation>Poner una contraseña…</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Skip: %1</source>
        <translation>Omitir: %1</translation>
    </message>
</context>
<context>
    <name>ui::FolderListModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Last backed up</source>
        <translation>Última copia</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>neither file nor folder</source>
        <translation>ni archivo ni carpeta</translation>
    </message>
    <message>
        <source>only a link</source>
        <translation>solo un enlace</translation>
    </message>
    <message>
        <source>holds the destination</source>
        <translation>contiene el destino</translation>
    </message>
    <message>
        <source>Neither a file nor a folder, and left out by a backup. Remove it.</source>
        <translation>No es ni un archivo ni una carpeta, y la copia lo omite. Quítelo.</translation>
    </message>
    <message>
        <source>A link to another place: only the link itself would be backed up. Add the folder that it leads to.</source>
        <translation>Un enlace a otro lugar: solo se haría copia del enlace mismo. Añada la carpeta a la que lleva.</translation>
    </message>
    <message>
        <source>The archives go into this folder, so each would hold the ones before it. Choose another destination.</source>
        <translation>Los paquetes van a esta carpeta, así que cada uno contendría los anteriores. Elija otro destino.</translation>
    </message>
    <message>
        <source>…</source>
        <comment>a size that is being measured</comment>
        <translation>…</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nunca</translation>
    </message>
    <message>
        <source>Not found, and left out. Connect its disk, or remove it.</source>
        <translation>No se encuentra, y se omite. Conecte su disco o quítelo.</translation>
    </message>
</context>
<context>
    <name>ui::FolderListView</name>
    <message>
        <source>Drop folders here, or press Add</source>
        <translation>Suelte carpetas aquí, o pulse Añadir</translation>
    </message>
</context>
<context>
    <name>ui::FoldersPage</name>
    <message>
        <source>not a size</source>
        <translation>no es un tamaño</translation>
    </message>
    <message>
        <source>700 MB – a CD</source>
        <translation>700 MB – un CD</translation>
    </message>
    <message>
        <source>4.7 GB – a DVD</source>
        <translation>4,7 GB – un DVD</translation>
    </message>
    <message>
        <source>25 GB – a Blu-ray disc</source>
        <translation>25 GB – un disco Blu-ray</translation>
    </message>
    <message>
        <source>None – one file an archive</source>
        <translation>Ninguno – un archivo por paquete</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Only %1 free, and a backup needs about %2 while it works</source>
        <translation>Solo %1 libres, y una copia necesita unos %2 mientras se hace</translation>
    </message>
    <message>
        <source>%1 free; a backup needs about %2 while it works</source>
        <translation>%1 libres; una copia necesita unos %2 mientras se hace</translation>
    </message>
    <message>
        <source>%1 – it opens the archives that are there</source>
        <translation>%1 – abre los paquetes que ya están</translation>
    </message>
    <message>
        <source>%1 – it does not open the archives that are there</source>
        <translation>%1 – no abre los paquetes que ya están</translation>
    </message>
    <message>
        <source>in files of %1</source>
        <translation>en archivos de %1</translation>
    </message>
    <message>
        <source>one file a folder</source>
        <translation>un archivo por carpeta</translation>
    </message>
    <message>
        <source>made smaller</source>
        <translation>reducidos</translation>
    </message>
    <message>
        <source>dated like the newest file</source>
        <translation>con la fecha del archivo más nuevo</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between properties of the archives</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>ui::HindranceList</name>
    <message>
        <source>Go to the list</source>
        <translation>Ir a la lista</translation>
    </message>
    <message>
        <source>Choose the place</source>
        <translation>Elegir el lugar</translation>
    </message>
    <message>
        <source>Go to the password</source>
        <translation>Ir a la contraseña</translation>
    </message>
    <message>
        <source>Go to the certificate</source>
        <translation>Ir al certificado</translation>
    </message>
    <message>
        <source>Go to the size</source>
        <translation>Ir al tamaño</translation>
    </message>
    <message>
        <source>Go to the tools</source>
        <translation>Ir a las herramientas</translation>
    </message>
    <message>
        <source>Still missing for a backup:</source>
        <translation>Lo que aún falta para una copia:</translation>
    </message>
</context>
<context>
    <name>ui::LevelBar</name>
    <message>
        <source>%1 of %2 tools are in order</source>
        <translation>%1 de %2 herramientas en orden</translation>
    </message>
    <message>
        <source>No tools checked</source>
        <translation>Herramientas sin comprobar</translation>
    </message>
</context>
<context>
    <name>ui::PathListView</name>
    <message>
        <source>Let go to add to the list</source>
        <translation>Suelte para añadir a la lista</translation>
    </message>
</context>
<context>
    <name>ui::PreviewTableView</name>
    <message>
        <source>What happens</source>
        <translation>Qué ocurre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
</context>
<context>
    <name>ui::ProgressFigures</name>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Tiempo: %1</translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message>
        <source>Undo removing from the list</source>
        <translation>Deshacer quitar de la lista</translation>
    </message>
    <message>
        <source>“%1” is off the list.</source>
        <translation>“%1” ya no está en la lista.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n entrada ya no está en la lista.</numerusform>
            <numerusform>%n entradas ya no están en la lista.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RunNotices</name>
    <message>
        <source>Files restored</source>
        <translation>Archivos restaurados</translation>
    </message>
    <message>
        <source>Restoring failed</source>
        <translation>La restauración ha fallado</translation>
    </message>
    <message>
        <source>Folders synchronised</source>
        <translation>Carpetas sincronizadas</translation>
    </message>
    <message>
        <source>The synchronisation failed</source>
        <translation>La sincronización ha fallado</translation>
    </message>
    <message>
        <source>Backup finished</source>
        <translation>Copia terminada</translation>
    </message>
    <message>
        <source>The backup failed</source>
        <translation>La copia ha fallado</translation>
    </message>
    <message>
        <source>Archive looked into</source>
        <translation>Contenido del paquete listo</translation>
    </message>
    <message>
        <source>The archive can&apos;t be looked into</source>
        <translation>No se puede mirar qué contiene el paquete</translation>
    </message>
</context>
<context>
    <name>ui::SizeEdit</name>
    <message>
        <source>%1 %2B</source>
        <translation>%1 %2B</translation>
    </message>
</context>
<context>
    <name>ui::StepperButtons</name>
    <message>
        <source>Larger</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Reducir</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableModel</name>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>makes and opens archives</source>
        <translation>hace y abre paquetes</translation>
    </message>
    <message>
        <source>encrypts and decrypts</source>
        <translation>cifra y descifra</translation>
    </message>
    <message>
        <source>copies what has changed</source>
        <translation>copia lo que ha cambiado</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>comprobando…</translation>
    </message>
    <message>
        <source>right tool</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>no sirve</translation>
    </message>
    <message>
        <source>The file is missing, can&apos;t be run, or is another program.</source>
        <translation>El archivo falta, no se puede ejecutar o es otro programa.</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableView</name>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose the file of %1</source>
        <translation>Elegir el archivo de %1</translation>
    </message>
</context>
<context>
    <name>ui::UnsavedChanges</name>
    <message>
        <source>All changes saved</source>
        <translation>Todos los cambios guardados</translation>
    </message>
    <message>
        <source>Changes are saved when you quit</source>
        <translation>Los cambios se guardan al salir</translation>
    </message>
    <message>
        <source>Profiles and settings not saved yet</source>
        <translation>Perfiles y ajustes aún sin guardar</translation>
    </message>
    <message>
        <source>Profiles not saved yet</source>
        <translation>Perfiles aún sin guardar</translation>
    </message>
    <message>
        <source>Settings not saved yet</source>
        <translation>Ajustes aún sin guardar</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>There are changes that are not saved.</source>
        <translation>Hay cambios sin guardar.</translation>
    </message>
    <message>
        <source>Without saving they are lost when the program ends.</source>
        <translation>Si no se guardan, se pierden cuando el programa se cierra.</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Version %1 is there. You have version %2.</source>
        <translation>Está disponible la versión %1. Usted tiene la versión %2.</translation>
    </message>
    <message>
        <source>it is no RSS feed</source>
        <translation>no es una fuente RSS</translation>
    </message>
</context>
</TS>
