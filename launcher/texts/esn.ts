<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Le damos la bienvenida al asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar [ProductName] ahora</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están actualizados.</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Procesando…</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>El asistente de instalación está listo para comenzar la instalación.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Connection mode</source>
        <translation>Modo de conexión</translation>
    </message>
    <message>
        <source>The local database is damaged. Disconnect from the server, then reconnect to rebuild the database. Details are in ~/.Quillmere/log.</source>
        <translation type="unfinished">La base de datos local está dañada. Desvincule la conexión y vuelva a vincularla para reconstruir la base de datos.</translation>
    </message>
    <message>
        <source>&amp;Close the applications and restart them after setup</source>
        <translation>&amp;Cerrar las aplicaciones y reiniciarlas después de la instalación</translation>
    </message>
    <message>
        <source>The folder is a mount point. Choose a folder that is not a mount point.</source>
        <translation>La carpeta es un punto de montaje. Elija una carpeta que no lo sea.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Listo para desinstalar [ProductName]</translation>
    </message>
    <message>
        <source>The server has been replaced. Click here to reconnect.</source>
        <translation type="unfinished">Se reemplazó el servidor. Haga clic aquí para volver a vincular la conexión.</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Archivos que se están sincronizando: %1.</translation>
    </message>
    <message>
        <source>The Setup Wizard lets you change, repair, or remove [ProductName]. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>El asistente de instalación permite cambiar, reparar o desinstalar [ProductName]. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Exclusion list</source>
        <translation type="unfinished">Lista de exclusión</translation>
    </message>
    <message>
        <source>Delete this share link?\nPeople who have the link will no longer be able to open the file.</source>
        <translation>¿Eliminar este enlace compartido?\nLas personas que tengan el enlace ya no podrán abrir el archivo.</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server.</source>
        <translation type="unfinished">Este cliente es demasiado antiguo para el servidor.</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión…</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted: it may have expired, belong to another server, or come from an unknown issuer. Others may be able to read the data you send. Continue?</source>
        <translation type="unfinished">El certificado SSL del servidor no es de confianza, por lo que otras personas podrían leer los datos que usted envíe. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>About Quillmere</source>
        <translation type="unfinished">Acerca de</translation>
    </message>
    <message>
        <source>Check the settings below, then click Done.</source>
        <translation>Compruebe la configuración que se muestra a continuación y haga clic en «Listo».</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Im&amp;primir</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the removal.</source>
        <translation>El asistente de instalación está listo para comenzar la desinstalación.</translation>
    </message>
    <message>
        <source>This computer is already connected to this server. Edit the existing connection, or enter another server.</source>
        <translation type="unfinished">Este equipo ya está vinculado a este servidor. Edite la conexión existente o indique otro servidor.</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Check the network connection, then try again.</source>
        <translation>Se perdió la conexión con el servidor. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified.</source>
        <translation type="unfinished">No se pudo verificar el certificado SSL del servidor.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation type="unfinished">Usar un icono en blanco y negro en la bandeja del sistema</translation>
    </message>
    <message>
        <source>The files in this folder will be synced with the server.</source>
        <translation>Los archivos de esta carpeta se sincronizarán con el servidor.</translation>
    </message>
    <message>
        <source>The proxy server requires sign-in</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation type="unfinished">Archivos excluidos</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer. Ask the server administrator to upgrade it.</source>
        <translation type="unfinished">El servidor es demasiado antiguo para este cliente. Pida al administrador del servidor que lo actualice.</translation>
    </message>
    <message>
        <source>You can run setup again at any time. Click Finish to exit the Setup Wizard.</source>
        <translation type="unfinished">Para volver a intentarlo, ejecute de nuevo el programa de instalación más tarde. Haga clic en «Finalizar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>The connection to the server is unstable.</source>
        <translation>La conexión con el servidor es inestable.</translation>
    </message>
    <message>
        <source>A newer version of Quillmere is already installed. To install this version, remove the newer one first.</source>
        <translation>Ya hay instalada una versión más reciente de Quillmere. Para instalar esta versión, desinstale primero la más reciente.</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Reparar» para reparar la instalación de [ProductName]. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Some settings have not been saved. Save them?</source>
        <translation type="unfinished">Hay cambios en la configuración sin guardar. ¿Desea guardarlos?</translation>
    </message>
    <message>
        <source>Icon overlays on files</source>
        <translation>Iconos superpuestos en los archivos</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>This folder is already used by another sync program. Choose another folder to avoid conflicts.</source>
        <translation type="unfinished">Otro programa de sincronización ya usa esta carpeta. Elija otra carpeta para evitar conflictos.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versión incompatible</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation type="unfinished">Cambiar la carpeta de sincronización</translation>
    </message>
    <message>
        <source>Enter a complete file name without a folder path, for example thumbs.db.</source>
        <translation type="unfinished">Introduzca un nombre de archivo completo, sin la ruta de la carpeta.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Setup stopped because of an error. The changes it had made were undone.</source>
        <translation type="unfinished">[DlgTitleFont]Un error interrumpió la instalación y se deshicieron los cambios realizados.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue, or click Cancel to exit the Setup Wizard.</source>
        <translation>El asistente de instalación instalará [ProductName] en el equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronización</translation>
    </message>
    <message>
        <source>Read the following license agreement carefully.</source>
        <translation>Lea detenidamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Folder not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Use an encrypted connection (TLS)</source>
        <translation type="unfinished">Cifrar la transferencia de datos con SSL</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>A new version of Quillmere is available. Click here to upgrade.</source>
        <translation>Hay una nueva versión de Quillmere disponible. Haga clic aquí para actualizar.</translation>
    </message>
    <message>
        <source>The download of %1 was canceled.</source>
        <translation>Se canceló la descarga de «%1».</translation>
    </message>
    <message>
        <source>The value you entered is not valid. Check it, then try again.</source>
        <translation>El valor introducido no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This file has no earlier versions yet. Change the file and let it sync to create one.</source>
        <translation>Este archivo aún no tiene versiones anteriores. Modifíquelo y deje que se sincronice para crear una.</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation type="unfinished">Desvincular</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Quillmere is initializing...</source>
        <translation>Inicializando Quillmere…</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar la sincronización</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinación</translation>
    </message>
    <message>
        <source>Quillmere is ready.</source>
        <translation>Quillmere está listo.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>This version could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>No se pudo descargar esta versión. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando la configuración…</translation>
    </message>
    <message>
        <source>Files excluded from syncing</source>
        <translation type="unfinished">Archivos que no se sincronizan</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>The Quillmere service is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>El servicio de Quillmere está desactivado en el servidor. Pida al administrador del servidor que lo active.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Choose shared folders to sync</source>
        <translation type="unfinished">Elija las carpetas compartidas que desea sincronizar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Re&amp;move</source>
        <translation>[DlgTitleFont]&amp;Desinstalar</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo…</translation>
    </message>
    <message>
        <source>To use selective sync, ask the server administrator to upgrade Quillmere on the server.</source>
        <translation>Para usar la sincronización selectiva, pida al administrador del servidor que actualice Quillmere en el servidor.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No se realizaron cambios en la configuración.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in use</source>
        <translation>[DlgTitleFont]Archivos en uso</translation>
    </message>
    <message>
        <source>Repairs errors in the installation of [ProductName] by restoring missing or damaged files and shortcuts.</source>
        <translation>Corrige los errores de la instalación de [ProductName] restaurando los archivos y accesos directos que faltan o están dañados.</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation type="unfinished">Extensiones de archivo excluidas</translation>
    </message>
    <message>
        <source>Syncing is paused.</source>
        <translation>La sincronización está en pausa.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome back to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Le damos de nuevo la bienvenida al asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is not mounted. Mount the drive, then resume syncing. See Sync tasks for the folder.</source>
        <translation type="unfinished">El volumen que contiene la carpeta de sincronización no está montado. Monte el volumen y reanude la sincronización.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full.</source>
        <translation type="unfinished">Este equipo no tiene espacio libre en disco.</translation>
    </message>
    <message>
        <source>Proxy server address</source>
        <translation>Dirección del servidor proxy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>A folder with this name already exists on this computer. Merge its files with those on the server?</source>
        <translation type="unfinished">Ya existe una carpeta con este nombre. ¿Desea combinar sus archivos con los del servidor?</translation>
    </message>
    <message>
        <source>Quillmere keeps your files in sync between your computers and your server.</source>
        <translation>Quillmere mantiene sus archivos sincronizados entre sus equipos y su servidor.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>Welcome to Quillmere</source>
        <translation>Le damos la bienvenida a Quillmere</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>Upgrading Quillmere...</source>
        <translation>Actualizando Quillmere…</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Enter a domain name, an IP address, or a server ID.</source>
        <translation>Introduzca un nombre de dominio, una dirección IP o un ID de servidor.</translation>
    </message>
    <message>
        <source>A share link could not be created for this file. Check the connection to the server, then try again.</source>
        <translation>No se pudo crear un enlace compartido para este archivo. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Files being synced: %1</source>
        <translation type="unfinished">Sincronizando archivos (%1)…</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation type="unfinished">Volver a vincular</translation>
    </message>
    <message>
        <source>Your files, in sync everywhere</source>
        <translation>Sus archivos, sincronizados en todas partes</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>The Setup Wizard is making the changes you chose.</source>
        <translation>El asistente de instalación está realizando los cambios elegidos.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>The folders and files you deselected will be removed from this computer. They will be kept on the server.</source>
        <translation type="unfinished">Las carpetas y los archivos que desmarcó se eliminarán de este equipo. Se conservarán en el servidor.</translation>
    </message>
    <message>
        <source>Setup made all the changes you chose. Click Finish to exit the Setup Wizard.</source>
        <translation>El programa de instalación realizó todos los cambios elegidos. Haga clic en «Finalizar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Desinstalar» para desinstalar [ProductName] del equipo. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>No queda espacio</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation type="unfinished">Inactiva</translation>
    </message>
    <message>
        <source>You have used all of your space on the server.</source>
        <translation type="unfinished">Su cuota en el servidor está agotada.</translation>
    </message>
    <message>
        <source>Disconnect from the server?\nYour files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation type="unfinished">¿Desvincular esta conexión?\nSus archivos se conservarán en este equipo y en el servidor, pero dejarán de sincronizarse.</translation>
    </message>
    <message>
        <source>The relay service has a problem. Try again later, or connect to the server by its IP address.</source>
        <translation type="unfinished">El servicio de retransmisión tiene un problema. Inténtelo de nuevo más tarde o conéctese con la dirección IP del servidor.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID del servidor</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation type="unfinished">Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Turned on</source>
        <translation type="unfinished">Activado</translation>
    </message>
    <message>
        <source>The drive that holds the sync folder is full. Free some space on it to continue syncing.</source>
        <translation type="unfinished">Este equipo no tiene espacio libre en disco. Libere espacio para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Carpetas para sincronizar</translation>
    </message>
    <message>
        <source>Choose sync folder</source>
        <translation type="unfinished">Elija una carpeta de sincronización</translation>
    </message>
    <message>
        <source>Connection settings</source>
        <translation>Configuración de conexión</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>You have used all of your space on the server. Delete files you do not need, or ask the server administrator for more space.</source>
        <translation type="unfinished">Su cuota en el servidor está agotada. Elimine los archivos que no necesite o pida al administrador del servidor una cuota mayor.</translation>
    </message>
    <message>
        <source>After you start [ProductName], you can find it in the system tray.</source>
        <translation>Después de iniciar [ProductName], podrá encontrarlo en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>&amp;Leave the applications open and restart the computer later</source>
        <translation>&amp;Dejar abiertas las aplicaciones y reiniciar el equipo más tarde</translation>
    </message>
    <message>
        <source>Use the following proxy server</source>
        <translation>Usar el siguiente servidor proxy</translation>
    </message>
    <message>
        <source>This file was changed on this computer and on the server. Both copies are in the same folder under different names. Compare them, then keep the one you need.</source>
        <translation type="unfinished">Este archivo se modificó en dos lugares. Compare ambas copias y conserve la que necesite.</translation>
    </message>
    <message>
        <source>All your files on every computer, kept on your own server</source>
        <translation type="unfinished">Un solo lugar para sus archivos en todos los equipos, a través de su propio servidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Close them, then click Retry. To continue without closing them, click Ignore. To leave setup, click Exit.</source>
        <translation type="unfinished">Las siguientes aplicaciones usan archivos que el programa de instalación debe actualizar. Ciérrelas y haga clic en «Reintentar», o bien haga clic en «Ignorar» para continuar sin cerrarlas o en «Salir» para abandonar la instalación.</translation>
    </message>
    <message>
        <source>The server cannot be reached. Check the network connection and the server address, then try again.</source>
        <translation>No se puede acceder al servidor. Compruebe la conexión de red y la dirección del servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>Files that match an entry in this list are not synced.</source>
        <translation>Los archivos que coinciden con una entrada de esta lista no se sincronizan.</translation>
    </message>
    <message>
        <source>Edit connection...</source>
        <translation type="unfinished">Editar conexión</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>The following applications use files that setup needs to update. Choose whether setup should close them. If they stay open, you need to restart the computer to finish setup.</source>
        <translation>Las siguientes aplicaciones usan archivos que el programa de instalación debe actualizar. Elija si deben cerrarse automáticamente. Si quedan abiertas, deberá reiniciar el equipo para finalizar la instalación.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair.</source>
        <translation>El asistente de instalación está listo para comenzar la reparación.</translation>
    </message>
    <message>
        <source>Open Quillmere</source>
        <translation>Abrir Quillmere</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar la nueva configuración de idioma.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation type="unfinished">Mostrar iconos superpuestos en los archivos filtrados</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>The limit of synced shared folders is reached: %1. Stop syncing a shared folder before you add another.</source>
        <translation type="unfinished">El número máximo de carpetas compartidas que se pueden sincronizar es %1. Deje de sincronizar una antes de agregar otra.</translation>
    </message>
    <message>
        <source>Remove this sync task?\nIts files will be kept on this computer and on the server, but they will no longer be synced.</source>
        <translation type="unfinished">¿Desvincular esta tarea de sincronización?\nSus archivos se conservarán en este equipo y en el servidor, pero dejarán de sincronizarse.</translation>
    </message>
    <message>
        <source>Starting Quillmere...</source>
        <translation>Iniciando Quillmere…</translation>
    </message>
    <message>
        <source>Quillmere could not be upgraded. Your earlier version was kept. Restart the computer, then try again. Details are in ~/.Quillmere/log.</source>
        <translation type="unfinished">No se pudo actualizar Quillmere. Reinicie el equipo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Exclude names that begin with a dot</source>
        <translation type="unfinished">Excluir los nombres que comienzan con un punto</translation>
    </message>
    <message>
        <source>The server has no free disk space. Ask the server administrator to free some space.</source>
        <translation>El servidor no tiene espacio libre en disco. Pida al administrador del servidor que libere espacio.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]License agreement</source>
        <translation>[DlgTitleFont]Contrato de licencia</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Se descargó el archivo «%1».</translation>
    </message>
    <message>
        <source>The versions of this file could not be listed. Check the connection to the server, then try again.</source>
        <translation>No se pudo obtener la lista de versiones de este archivo. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Connected to the server.</source>
        <translation>Se estableció la conexión con el servidor.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup is complete</source>
        <translation type="unfinished">{\VerdanaBold13}Finalización del asistente de instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Do not use a proxy server</source>
        <translation>No usar un servidor proxy</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Carpeta compartida no encontrada</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Parvenor Quillmere</source>
        <translation>Parvenor Quillmere</translation>
    </message>
    <message>
        <source>%1 could not be downloaded. Check the connection to the server, then try again.</source>
        <translation>No se pudo descargar el archivo «%1». Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Watching for file changes...</source>
        <translation>Supervisando los cambios en los archivos…</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Quillmere settings</source>
        <translation type="unfinished">Opciones del cliente</translation>
    </message>
    <message>
        <source>The share link could not be deleted. Check the connection to the server, then try again.</source>
        <translation>No se pudo eliminar el enlace compartido. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The certificate of the server could not be verified: it may have expired, belong to another server, or come from an unknown issuer. Ask the server administrator to check the certificate.</source>
        <translation type="unfinished">No se pudo verificar el certificado SSL del servidor. Pida al administrador del servidor que revise el certificado.</translation>
    </message>
    <message>
        <source>This is not the server that this computer was connected to. Check the server address, or reconnect.</source>
        <translation type="unfinished">Este no es el servidor al que estaba vinculada la conexión. Compruebe la dirección del servidor o vuelva a vincular la conexión.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] no tiene características que se puedan cambiar por separado.</translation>
    </message>
    <message>
        <source>The address or port of the proxy server is missing. Enter both, then try again.</source>
        <translation>Falta la dirección o el puerto del servidor proxy. Introduzca ambos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>The user name is missing. Enter a user name.</source>
        <translation>Falta el nombre de usuario. Introduzca un nombre de usuario.</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar enlace</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>I &amp;accept the terms of the license agreement</source>
        <translation>A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Updated: %1</source>
        <translation>Actualizado: %1</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrar conexiones</translation>
    </message>
    <message>
        <source>Connect to another server...</source>
        <translation type="unfinished">Vincular a otro servidor</translation>
    </message>
    <message>
        <source>Show icon overlays</source>
        <translation>Mostrar iconos superpuestos</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Making changes to [ProductName]</source>
        <translation type="unfinished">[DlgTitleFont]Configurando [ProductName]</translation>
    </message>
    <message>
        <source>Service turned off</source>
        <translation>Servicio desactivado</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizar</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder?\nThe files already on this computer will be kept.</source>
        <translation>¿Dejar de sincronizar esta carpeta compartida?\nLos archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Files to exclude</source>
        <translation type="unfinished">Filtro de archivos</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalles del estado</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms of the license agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Something went wrong. Try again, and contact the server administrator if the problem continues. Details are in ~/.Quillmere/log.</source>
        <translation type="unfinished">Se produjo un problema. Inténtelo de nuevo y, si el problema continúa, póngase en contacto con el administrador del servidor.</translation>
    </message>
    <message>
        <source>Tray icons</source>
        <translation>Iconos de la bandeja del sistema</translation>
    </message>
    <message>
        <source>The folder is read-only. Choose a folder you can write to.</source>
        <translation>La carpeta es de solo lectura. Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configuración del proxy</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator, so Quillmere might not install completely. Continue?</source>
        <translation type="unfinished">No ha iniciado sesión como administrador, por lo que es posible que Quillmere no se instale por completo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Use the tray icon at any time to see the sync status or change the settings.</source>
        <translation>Use el icono de la bandeja del sistema en cualquier momento para ver el estado de la sincronización o cambiar la configuración.</translation>
    </message>
    <message>
        <source>Share link created</source>
        <translation>Enlace compartido creado</translation>
    </message>
    <message>
        <source>The user name or password is not correct. Check both, then try again.</source>
        <translation>El nombre de usuario o la contraseña no son correctos. Compruebe ambos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>The shared folder %1 is now available. Click here to sync it.</source>
        <translation>La carpeta compartida «%1» ya está disponible. Haga clic aquí para sincronizarla.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Connection information</source>
        <translation>Información de conexión</translation>
    </message>
    <message>
        <source>Lets you choose which features are installed.</source>
        <translation>Permite elegir las características que se instalan.</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>Folder is a mount point</source>
        <translation>La carpeta es un punto de montaje</translation>
    </message>
    <message>
        <source>Choose another folder...</source>
        <translation type="unfinished">Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Repair</source>
        <translation>[DlgTitleFont]&amp;Reparar</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Desinstalar</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Enter the server address and the account you use on the server.</source>
        <translation>Introduzca la dirección del servidor y la cuenta que usa en él.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished">Desvincular</translation>
    </message>
    <message>
        <source>Another server was found at the server address.</source>
        <translation type="unfinished">En la dirección del servidor se encontró un servidor distinto.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation type="unfinished">Vinculando al servidor…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Share link</source>
        <translation>Crear enlace compartido</translation>
    </message>
    <message>
        <source>The user name or password was not accepted by the server. Edit the connection and enter them again.</source>
        <translation>El servidor no aceptó el nombre de usuario o la contraseña. Edite la conexión y vuelva a introducirlos.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Change folder...</source>
        <translation type="unfinished">Cambiar carpeta</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando…</translation>
    </message>
    <message>
        <source>File locked</source>
        <translation type="unfinished">El archivo está bloqueado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Syncing files...</source>
        <translation type="unfinished">Actualizando archivos…</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Checking the user name and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña…</translation>
    </message>
    <message>
        <source>Wait while the Setup Wizard makes the changes to [ProductName]. This can take several minutes.</source>
        <translation type="unfinished">Espere mientras el asistente de instalación configura [ProductName]. Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The server ID is not valid. Check the server ID, then try again.</source>
        <translation>El ID del servidor no es válido. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Abrir carpeta de sincronización</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al hacer doble clic en el icono de la bandeja del sistema</translation>
    </message>
    <message>
        <source>Syncing could not be turned on for this shared folder. Check your permissions on the server, then try again.</source>
        <translation>No se pudo activar la sincronización de esta carpeta compartida. Compruebe sus permisos en el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>File sharing over the relay is turned off on the server. Ask the server administrator to turn it on.</source>
        <translation>El uso compartido de archivos mediante retransmisión está desactivado en el servidor. Pida al administrador del servidor que lo active.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Agregar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reanudar la sincronización</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sa&amp;lir</translation>
    </message>
    <message>
        <source>The share link was copied to the clipboard.</source>
        <translation>El enlace compartido se copió en el portapapeles.</translation>
    </message>
    <message>
        <source>The local sync folder was not found. Restore the folder, or choose another folder. See Sync tasks for its path.</source>
        <translation type="unfinished">No se encontró la carpeta de sincronización local. Restáurela o elija otra.</translation>
    </message>
    <message>
        <source>Upgrade Quillmere</source>
        <translation>Actualización de Quillmere</translation>
    </message>
    <message>
        <source>Add sync task...</source>
        <translation type="unfinished">Agregar tarea de sincronización</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server. Ask the server administrator to mount it. See Shared folders for its name.</source>
        <translation type="unfinished">La carpeta compartida no está montada en el servidor. Pida al administrador del servidor que la monte.</translation>
    </message>
    <message>
        <source>The server sent an unexpected response. Upgrade Quillmere on this computer, and ask the server administrator to upgrade it on the server. Details are in ~/.Quillmere/log.</source>
        <translation type="unfinished">El servidor envió una respuesta inesperada. Actualice el cliente y el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Información general del servidor</translation>
    </message>
    <message>
        <source>Syncing stopped because of a problem. Click here for details.</source>
        <translation>La sincronización se detuvo debido a un problema. Haga clic aquí para ver los detalles.</translation>
    </message>
    <message>
        <source>Enter a size of at most %1 MB.</source>
        <translation>Introduzca un tamaño de %1 MB como máximo.</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation type="unfinished">Comprobando los datos…</translation>
    </message>
    <message>
        <source>Trying to sync...</source>
        <translation>Intentando sincronizar…</translation>
    </message>
    <message>
        <source>Click Install to begin the installation of [ProductName]. Click Back to review your choices, or click Cancel to exit the Setup Wizard.</source>
        <translation>Haga clic en «Instalar» para comenzar la instalación de [ProductName]. Haga clic en «Atrás» para revisar las opciones elegidas o en «Cancelar» para salir del asistente de instalación.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup was canceled</source>
        <translation type="unfinished">{\VerdanaBold13}La instalación de [ProductName] se interrumpió</translation>
    </message>
    <message>
        <source>The folder is not empty. Merge its files with those on the server, or choose another folder.</source>
        <translation>La carpeta no está vacía. Combine sus archivos con los del servidor o elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is being indexed. Its files will appear when indexing is complete.</source>
        <translation>Esta carpeta se está indexando. Sus archivos aparecerán cuando termine la indexación.</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>You can open the files in this shared folder, but changes you make are not uploaded.</source>
        <translation>Puede abrir los archivos de esta carpeta compartida, pero los cambios que haga no se subirán al servidor.</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>This folder is already synced with another shared folder. Choose another folder.</source>
        <translation type="unfinished">Esta carpeta ya está sincronizada con otra carpeta compartida. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>The server has no free disk space.</source>
        <translation>El servidor no tiene espacio libre en disco.</translation>
    </message>
    <message>
        <source>Relay by server ID</source>
        <translation>Retransmisión por ID de servidor</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Elija lo que desea hacer.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] setup did not finish</source>
        <translation>{\VerdanaBold13}La instalación de [ProductName] no se completó</translation>
    </message>
    <message>
        <source>Quillmere is already running.</source>
        <translation>Quillmere ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Start Quillmere when I sign in to this computer</source>
        <translation>Ejecutar Quillmere al iniciar sesión en este equipo</translation>
    </message>
    <message>
        <source>All files from both folders are kept. If two versions of a file differ, both are kept under different names.</source>
        <translation type="unfinished">Se conservan todos los archivos de ambas carpetas. Si dos versiones de un archivo son distintas, obtendrá las dos.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Syncing turned on</source>
        <translation type="unfinished">Sincronización activada</translation>
    </message>
    <message>
        <source>Quillmere could not start. Restart the computer, then start Quillmere again. Details are in ~/.Quillmere/log.</source>
        <translation type="unfinished">No se pudo iniciar Quillmere. Reinicie el equipo y vuelva a iniciar Quillmere.</translation>
    </message>
    <message>
        <source>Cancel the setup of [ProductName]?</source>
        <translation type="unfinished">¿Desea cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove [ProductName]</source>
        <translation>[DlgTitleFont]Cambiar, reparar o desinstalar [ProductName]</translation>
    </message>
    <message>
        <source>Quillmere is set up</source>
        <translation>Quillmere está configurado</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Browse versions...</source>
        <translation type="unfinished">Explorar versiones</translation>
    </message>
    <message>
        <source>[DlgTitleFont]&amp;Change</source>
        <translation>[DlgTitleFont]&amp;Cambiar</translation>
    </message>
    <message>
        <source>This computer is disconnected from the server. Reconnect to continue syncing.</source>
        <translation type="unfinished">Esta conexión está inactiva. Vuelva a vincularla para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Detecting...</source>
        <translation>Detectando…</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation type="unfinished">Advertencia de SSL</translation>
    </message>
    <message>
        <source>The relay service cannot be reached. Check the internet connection, then try again.</source>
        <translation type="unfinished">No se puede acceder al servicio de retransmisión. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Desinstala [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Descargando «%1»…</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>[DlgTitleFont]You canceled setup, and your computer was not changed.</source>
        <translation>[DlgTitleFont]Se canceló la instalación y no se realizaron cambios en el equipo.</translation>
    </message>
    <message>
        <source>The port number is not valid. Enter a number from 1 to 65535.</source>
        <translation>El número de puerto no es válido. Introduzca un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>Quillmere cannot watch for changes on a network drive. Choose a folder on a local drive.</source>
        <translation>Quillmere no puede supervisar los cambios en una unidad de red. Elija una carpeta en una unidad local.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Desinstalar el programa</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>The drive on the server that holds this folder is not mounted. Ask the server administrator to mount it. See Sync tasks for the folder.</source>
        <translation type="unfinished">El volumen del servidor que contiene esta carpeta no está montado. Pida al administrador del servidor que lo monte.</translation>
    </message>
    <message>
        <source>This version of Quillmere is already installed. Install it again?</source>
        <translation type="unfinished">Esta versión de Quillmere ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Quillmere on this computer is too old to work with the server. Upgrade it, then try again.</source>
        <translation type="unfinished">Este cliente es demasiado antiguo para el servidor. Actualice el cliente e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Quillmere on the server is too old to work with this computer.</source>
        <translation type="unfinished">El servidor es demasiado antiguo para este cliente.</translation>
    </message>
    <message>
        <source>Turned off</source>
        <translation type="unfinished">Desactivado</translation>
    </message>
</context>
</TS>
